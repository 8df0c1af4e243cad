#pragma once

#include <optional>

#include "core/archive.h"
#include "core/controls.h"

namespace trv5 {

/// The heading of a grid that shows a draw: wheels are its rows 1..11, positions its columns 1..5.
inline constexpr std::string_view kDrawHeading = "|1|2|3|4|5";

/// One draw on a screen: the scroll bar that chooses it, what is told of it, its numbers.
struct DrawPanel {
  Scroll& scroller;
  Label &index, &date, &progressives;
  GridControl& numbers;
};

/// Gives a grid its twelve rows and the codes of the wheels.
void writeWheelCodes(Grid& numbers);

/// Takes the colours off the numbers.
void whitenNumbers(Grid& numbers);

/// The scroll bar at a draw of the archive, which may have grown since the bar was last moved.
void moveToDraw(Scroll& scroller, const Archive& archive, int draw);

/// The draw at which the scroll bar stands, the marks as they are. The bar follows the length of the archive.
void writeDraw(const Archive& archive, const DrawPanel& panel);

/// The draw at which the scroll bar stands, without marks. The bar follows the length of the archive.
void showDraw(const Archive& archive, const DrawPanel& panel);

/// "Ricerca per numero indice": asks for the index of a draw; nothing when the archive has no such draw.
std::optional<int> askDrawByIndex(Shell& shell, const Archive& archive);

/// "Cerca estrazione per data": asks for a date of the model archive and gives its place there, which is the draw's own
/// index where the model begins at draw 1. Says so when it isn't found; an empty answer is none.
std::optional<int> askDrawByDate(Shell& shell, const Archive& archive);

}  // namespace trv5
