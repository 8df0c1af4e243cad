#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trv5 {

/// The numbers of a system's rows, each row in rising order.
using SystemRows = std::vector<std::vector<int>>;

/// The numbers 1..90 of a row stored as a text in which character k is "X" when the number k belongs to it. A shorter
/// text has fewer numbers; other characters are ignored.
std::vector<int> numbersOfMarks(std::string_view marks);

/// All numbers of the rows, each once, in rising order. What isn't in 1..90 is left out.
std::vector<int> usedNumbers(const SystemRows& rows);

/// The rows with the i-th of the `used` numbers replaced by the i-th of `chosen`, by 0 where there are fewer of these.
/// Of each row the first `width` places; nothing where the row is shorter or holds a number that isn't used.
std::vector<std::vector<std::optional<int>>> rewritten(const SystemRows& rows, const std::vector<int>& used,
                                                       const std::vector<int>& chosen, int width);

/// What a system promises, worked out from its rows: "9 numeri, 12 righe, 3 numeri a riga: ogni coppia esattamente una
/// volta." Where pairs stand more than once it tells of the triples too, and of the rounds in which the rows take each
/// number once. Empty for a system without numbers.
std::string promiseOf(const SystemRows& rows);

}  // namespace trv5
