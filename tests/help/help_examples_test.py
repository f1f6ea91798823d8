"""What scripts/check-help lets pass and what it refuses, on a small help and a transcript made for it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).parent.parent.parent / "scripts" / "check-help"
HELP = "[UNO]\n/pTema/\n\n/tEjemplo/\nCon x = /3t^2/ y t = 4:\nx = 16\n\n/tObserva/\nTiene 7 letras.\n[STOP]\n"
PROOF = "# Help: Ayuda UNO\n#   /tEjemplo/\n#   Con x = /3t^2/ y t = 4:\n#   x = 16\n> set a t^2\n> set b 4\n> show c\n16\n"


def check(help_text, transcript):
    """Whether the script passes a help and its transcript, and what it writes."""
    with tempfile.TemporaryDirectory() as help_folder, tempfile.TemporaryDirectory() as transcripts:
        pathlib.Path(help_folder, "Ayuda.txt").write_text(help_text, encoding="utf-8")
        pathlib.Path(transcripts, "one.transcript").write_text(transcript, encoding="utf-8")
        result = subprocess.run([sys.executable, SCRIPT, help_folder, transcripts], capture_output=True, text=True,
                                check=False)
        return result.returncode == 0, result.stdout + result.stderr


class CheckHelp(unittest.TestCase):
    def assert_refused(self, help_text, transcript, words):
        passed, output = check(help_text, transcript)
        self.assertFalse(passed, output)
        self.assertIn(words, output)

    def test_lets_pass_an_example_that_is_quoted_and_played(self):
        passed, output = check(HELP, PROOF)
        self.assertTrue(passed, output)
        self.assertIn("1 worked examples, 1 proved", output)

    def test_refuses_a_help_that_changed(self):
        self.assert_refused(HELP.replace("x = 16", "x = 17"), PROOF, "the help tells\n    x = 17")

    def test_refuses_an_example_that_grew(self):
        self.assert_refused(HELP.replace("x = 16", "x = 16\nv = 8"), PROOF, "v = 8")

    def test_refuses_an_answer_that_the_program_does_not_show(self):
        self.assert_refused(HELP, PROOF.replace("\n16\n", "\n15\n"), "tells 16")

    def test_refuses_an_example_without_a_transcript(self):
        self.assert_refused(HELP.replace("[STOP]", "Luego /32+3/ da 5.\n[STOP]"), PROOF, "Ayuda UNO has an example without a transcript:\n    Luego")

    def test_refuses_a_proof_of_nothing(self):
        self.assert_refused(HELP, PROOF + "# Help: Ayuda DOS\n#   nada\n> tool 1\n", "no example in Ayuda DOS")

    def test_takes_an_aside_only_for_a_number_that_is_not_played(self):
        longer = HELP.replace("x = 16", "x = 16, no 25")
        proof = PROOF.replace("#   x = 16", "#   x = 16, no 25")
        self.assert_refused(longer, proof, "tells 25")
        passed, output = check(longer, proof.replace("> set a", "# Aside: 25\n> set a"))
        self.assertTrue(passed, output)
        self.assert_refused(longer, proof.replace("> set a", "# Aside: 16, 25\n> set a"), "needs no aside for 16")

    def test_takes_as_many_decimals_as_the_help_tells(self):
        third = HELP.replace("x = 16", "x = 0.333")
        proof = PROOF.replace("#   x = 16", "#   x = 0.333")
        passed, output = check(third, proof.replace("\n16\n", "\n0.333333\n"))
        self.assertTrue(passed, output)
        self.assert_refused(third, proof.replace("\n16\n", "\n0.34\n"), "tells 0.333")


if __name__ == "__main__":
    unittest.main()
