#include "mechanics/projectile/planting.h"

#include <utility>

namespace tavrelo::mechanics::projectile {

Outcome PlantInto(const Problem& problem, int mover, const Launch& launch, int decimals) {
    Outcome outcome = {problem, {}};
    Equations& equations = outcome.problem.EquationsOf(mover);
    equations = {};
    auto planted = PlantLaunch(mover, launch, decimals);
    if (auto* refusal = std::get_if<text::Refusal>(&planted)) {
        outcome.events = {Box{refusal->text}};
        return outcome;
    }
    auto& [made, report, board] = std::get<Planted>(planted);
    equations = made;
    int slot = FirstSlotOf(mover);
    for (int i = 0; i < kLinesPerMover; ++i)
        outcome.events.emplace_back(ClearSlot{slot + i});
    outcome.events.emplace_back(ShowBoard{});
    for (const EquationLine& line : board)
        outcome.events.emplace_back(BoardLine{slot++, ForPicture(line)});
    outcome.events.emplace_back(WriteLines{std::move(report)});
    return outcome;
}

Question AskToPlant(int mover, const std::vector<Launch>& launches, const std::string& text,
                    Buttons buttons) {
    Question question = {buttons, text, PlantRequest{mover, launches.front()}, std::nullopt};
    if (launches.size() > 1)
        question.no = PlantRequest{mover, launches[1]};
    return question;
}

}  // namespace tavrelo::mechanics::projectile
