"""What scripts/check-arrows lets pass and what it refuses, on small trees made for it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).parent.parent.parent / "scripts" / "check-arrows"
TABLE = "# rooms\nlow:\nhigh/a: low\nhigh/b: low\nqt: high/a low\n"
HEADERS = {"low/low.h": "", "high/a/a.h": "", "high/b/b.h": ""}


def check(files, table=TABLE):
    """Whether the script passes a tree of these files, and what it writes."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in {**HEADERS, **files, "arrows.txt": table}.items():
            path = pathlib.Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        result = subprocess.run([sys.executable, SCRIPT, folder], capture_output=True, text=True, check=False)
        return result.returncode == 0, result.stdout + result.stderr


class CheckArrows(unittest.TestCase):
    def assert_refused(self, files, words, table=TABLE):
        passed, output = check(files, table)
        self.assertFalse(passed, output)
        self.assertIn(words, output)

    def test_lets_pass_what_the_table_allows(self):
        passed, output = check({"high/a/a.cpp": '#include "high/a/a.h"\n#include <vector>\n#include "low/low.h"\n',
                                "qt/view.cpp": '#include <QWidget>\n#include "high/a/a.h"\n'})
        self.assertTrue(passed, output)

    def test_refuses_an_arrow_upward_with_file_and_line(self):
        self.assert_refused({"low/low.cpp": '#include "low/low.h"\n\n#include "high/a/a.h"\n'},
                            "low/low.cpp:3: low may not include high/a")

    def test_refuses_one_subject_in_another(self):
        self.assert_refused({"high/a/a.cpp": '#include "high/b/b.h"\n'}, "high/a may not include high/b")

    def test_refuses_the_toolkit_below_the_view(self):
        for header in ("<QString>", '"QString"', "<QtGlobal>", "<qglobal.h>", "<QtWidgets/QLabel>"):
            with self.subTest(header=header):
                self.assert_refused({"low/low.cpp": f"#include {header}\n"}, "header of the toolkit")

    def test_refuses_a_file_outside_the_rooms(self):
        self.assert_refused({"attic/old.cpp": ""}, "attic/old.cpp:1: the file stands in no room")
        self.assert_refused({"high/c/c.h": ""}, "high/c/c.h:1: the file stands in no room")

    def test_refuses_a_header_that_is_not_there(self):
        self.assert_refused({"low/low.cpp": '#include "low/lost.h"\n'}, "there is no header low/lost.h")

    def test_refuses_a_table_that_points_to_nothing_or_in_a_circle(self):
        self.assert_refused({}, "points to cellar", TABLE + "roof: cellar\n")
        self.assert_refused({}, "make a circle among", "low: high/a\nhigh/a: low\nhigh/b:\n")

    def test_refuses_a_tree_without_files(self):
        with tempfile.TemporaryDirectory() as folder:
            pathlib.Path(folder, "arrows.txt").write_text(TABLE, encoding="utf-8")
            result = subprocess.run([sys.executable, SCRIPT, folder], capture_output=True, check=False)
        self.assertNotEqual(result.returncode, 0)


if __name__ == "__main__":
    unittest.main()
