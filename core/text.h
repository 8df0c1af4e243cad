#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trv5 {

/// The number that a text begins with: leading blanks, then leading digits; anything else, a sign too, gives 0. Values
/// beyond 16 bits stay at 32767, the highest that any list, draw or counter can hold.
int numberOf(std::string_view text);

/// `value` with at least two digits: "07", "90".
std::string twoDigits(int value);

/// `text` without blanks at both ends.
std::string_view trimmed(std::string_view text);

/// A count with its noun: "1 riga", "51 righe".
std::string counted(int count, std::string_view one, std::string_view many);

/// The pieces of `text` between separators; an empty text has one empty piece.
std::vector<std::string> split(std::string_view text, char separator);

/// The numbers of a text that holds one every three characters, two digits and any separator: "05-71-13". Each is taken
/// as numberOf reads it, 0 included.
std::vector<int> numbersEveryThree(std::string_view text);

/// The number of characters, not bytes, of a UTF-8 text.
int characterCount(std::string_view text);

/// The byte at which the character `character`, from 0, begins; the end of the text for those beyond it.
std::size_t byteOfCharacter(std::string_view text, int character);

/// `text` with '?' in place of each character beyond ASCII, so that places count characters and not bytes.
std::string asciiText(std::string_view text);

/// True when the two texts are equal but for the case of their ASCII letters.
bool equalIgnoringCase(std::string_view a, std::string_view b);

/// `text` in small letters, those with the accents of western languages too; other letters stay.
std::string foldedCase(std::string_view text);

}  // namespace trv5
