#include "player.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "acts.h"
#include "buttons.h"
#include "checks.h"
#include "commands.h"
#include "problems.h"
#include "words.h"

namespace tavrelo::sessions {
namespace {

using transcript::Driver;
using transcript::Session;
using window::Answer;
using window::Buttons;

std::string NameOf(Answer answer) {
    switch (answer) {
        case Answer::Yes:
            return "Yes";
        case Answer::No:
            return "No";
        case Answer::Ok:
            return "OK";
        case Answer::Cancel:
            break;
    }
    return "Cancel";
}

/// One program in the hands of the player.
struct Seat {
    explicit Seat(std::unique_ptr<Driver> made) : driver(std::move(made)), session(*driver) {}

    std::vector<std::string> Do(const std::string& act) {
        transcript::Perform(session, act);
        return session.TakeLines();
    }

    std::unique_ptr<Driver> driver;
    Session session;
};

class Game {
  public:
    explicit Game(const Plan& plan) : m_plan(plan), m_chance(plan.seed), m_seat(plan.make_driver()) {
        m_seat.driver->World().box_log.Improvise(
            {[this](Buttons buttons) { return Choose(buttons); }, [this] { return WriteText(); }});
        if (plan.make_peer)
            m_peer.emplace(plan.make_peer());
        m_contents = ContentsOf(m_seat.session);
    }

    std::optional<Fault> Play() {
        for (int k = 0; k < m_plan.acts; ++k)
            if (const auto reason = Step())
                return Fault{*reason, m_lines};
        return std::nullopt;
    }

  private:
    Answer Choose(Buttons buttons) {
        const bool first = m_chance.OneIn(2);
        const Answer answer = buttons == Buttons::YesNo ? (first ? Answer::Yes : Answer::No)
                                                        : (first ? Answer::Ok : Answer::Cancel);
        m_answers.push_back("answer " + NameOf(answer));
        return answer;
    }
    std::optional<std::string> WriteText() {
        if (m_chance.OneIn(8)) {
            m_answers.emplace_back("answer Cancel");
            return std::nullopt;
        }
        const std::string text = AnswerText(m_chance);
        m_answers.push_back("answer = " + text);
        return text;
    }

    std::optional<std::string> Step() {
        const std::string act = RandomAct(*m_seat.driver, m_chance);
        const Problems problems = ProblemsOf(Tools());
        m_answers.clear();
        std::vector<std::string> shown;
        std::optional<std::string> failure;
        try {
            shown = m_seat.Do(act);
        } catch (const transcript::ScriptError&) {
            // A place that the control does not have: nothing was done.
        } catch (const std::exception& escaped) {
            failure = std::string("a failure left the guard: ") + escaped.what();
        }
        for (const std::string& answer : m_answers)
            m_lines.push_back("> " + answer);
        m_lines.push_back("> " + act);
        if (failure)
            return failure;
        if (auto reason = Check(shown))
            return reason;
        if (auto reason = CheckProblem(act, shown, problems))
            return reason;
        return m_peer ? Compare(act, shown) : std::nullopt;
    }

    std::optional<std::string> Check(const std::vector<std::string>& shown) {
        const Contents before = std::exchange(m_contents, ContentsOf(m_seat.session));
        if (const auto line = FindNoNumber(shown))
            return "a box holds no number: " + *line;
        if (const auto line = FindNoNumber(m_contents))
            return "no number in " + *line;
        if (IsRefusal(shown))
            if (const auto name = ChangedProblem(before, m_contents))
                return "the refusal \"" + shown.back() + "\" changed " + *name;
        return std::nullopt;
    }

    /// The problems behind what is shown.
    std::optional<std::string> CheckProblem(const std::string& act, const std::vector<std::string>& shown,
                                            const Problems& before) {
        m_least_decimals = std::min<int>(m_least_decimals, Tools().form.publics.Decimals);
        if (auto wrong = WrongShown(Tools(), m_least_decimals))
            return wrong;
        const bool refused = IsRefusal(shown);
        if (refused)
            if (const auto tool = ChangedTool(before, ProblemsOf(Tools())))
                return "the refusal \"" + shown.back() + "\" changed the problem of " + *tool;
        const bool confirmed = std::ranges::find(m_answers, "answer Yes") != m_answers.end();
        return m_buttons.FindWrong(Tools(), {act, refused, confirmed, before.particle.size()});
    }

    std::optional<std::string> Compare(const std::string& act, const std::vector<std::string>& shown) {
        std::vector<std::string> peer_shown;
        try {
            for (const std::string& answer : m_answers)
                m_peer->Do(answer);
            peer_shown = m_peer->Do(act);
        } catch (const transcript::ScriptError&) {
            // As in the first program.
        }
        if (shown != peer_shown)
            return "the two programs show different boxes";
        if (const auto difference = FirstDifference(m_contents, ContentsOf(m_peer->session)))
            return "the two programs differ in " + *difference;
        return std::nullopt;
    }

    const app::Program::Tools& Tools() { return m_seat.driver->Program().Parts(); }

    const Plan& m_plan;
    Chance m_chance;
    Seat m_seat;
    std::optional<Seat> m_peer;
    Contents m_contents;  // after the last act
    ButtonRules m_buttons;
    int m_least_decimals = text::kDefaultDecimals;
    std::vector<std::string> m_answers;
    std::vector<std::string> m_lines;
};

}  // namespace

std::optional<Fault> PlaySession(const Plan& plan) { return Game(plan).Play(); }

}  // namespace tavrelo::sessions
