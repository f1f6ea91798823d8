#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "window/form1.h"

namespace tavrelo::window {

/// What an event does to a control.
enum class Enabling { AsItWas, On, Off };

/// One row of a tool's table of enabling: an event of its life, and what that does to each of its controls.
/// Written as
///
///     constexpr EnablingRow<Event, 3> kEnabling[] = {
///         // Resolver  Restaurar  Actualizar
///         {Event::Solved, {Off, On, On}},
template <class EventType, std::size_t kControls>
struct EnablingRow {
    EventType event;
    std::array<Enabling, kControls> controls;
};

/// Does what the table says of an event; one without a row changes nothing. The controls come in the order of
/// the table's columns.
template <class EventType, std::size_t kControls, std::size_t kRows>
void Enable(const EnablingRow<EventType, kControls> (&table)[kRows], EventType event,
            const std::array<Control*, kControls>& controls) {
    for (const auto& row : table) {
        if (row.event != event)
            continue;
        for (std::size_t k = 0; k < kControls; ++k)
            if (row.controls[k] != Enabling::AsItWas)
                controls[k]->SetEnabled(row.controls[k] == Enabling::On);
    }
}

/// The controls of an array, as Enable takes them; fails with SubscriptRange when they are not so many.
template <std::size_t kControls, class ControlType>
std::array<Control*, kControls> ControlsOf(const ControlArray<ControlType>& array) {
    if (array.Items().size() != kControls)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "controls to enable");
    std::array<Control*, kControls> controls{};
    for (std::size_t k = 0; k < kControls; ++k)
        controls[k] = array.Items()[k].second;
    return controls;
}

}  // namespace tavrelo::window
