#pragma once

#include <vector>

namespace trv5 {

/// Rows of numbers from 1 on, each in rising order, the rows in rising order of their numbers. Where a design below
/// tells nothing else two numbers stand together in one row at most.
using Blocks = std::vector<std::vector<int>>;

/// Triples over 1..v in which each pair stands once, for v = 1 or 3 modulo 6 and at least 7: the constructions of Bose
/// (v = 3 modulo 6) and Skolem (v = 1 modulo 6).
Blocks steinerTriples(int v);

/// 35 triples over 1..15 in which each pair stands once, in seven rounds: five rows that follow each other hold each
/// number once. The rounds are the sums of one with the elements of Z(7), over 7 + 7 numbers and a fixed one, the last.
Blocks kirkmanTriples();

/// The quadruples over 2^bits numbers whose ranks, from 0, add up to 0 bit by bit: each triple stands in one row, so a
/// pair in several.
Blocks binaryQuadruples(int bits);

/// The lines of the plane over the field of q elements: q * q points, each pair on one line of q points.
Blocks affinePlane(int q);

/// The same without its last point and the lines through it.
Blocks puncturedAffinePlane(int q);

/// The lines of the projective plane over the field of q elements: q * q + q + 1 points, each pair on one line of q
/// + 1.
Blocks projectivePlane(int q);

/// `width` groups of q numbers, 1..q, q + 1..2q, ..: each pair from two groups stands in one of the q * q rows, pairs
/// inside a group in none. `width` is at most q + 1.
Blocks transversalDesign(int width, int q);

/// The 28 points of the Hermitian curve over the field of 9 elements, and the 63 lines that meet it in 4 of them: each
/// pair stands in one row.
Blocks hermitianUnital();

/// All the sums of the base blocks with the elements of the group Z(moduli[0]) x Z(moduli[1]) x ..; each pair stands
/// once where the differences inside the base blocks give each element of the group once. A base block lists elements,
/// each by its coordinates. The element of rank 0 (all coordinates 0) is the number 1.
Blocks developed(const std::vector<int>& moduli, const std::vector<std::vector<std::vector<int>>>& baseBlocks);

}  // namespace trv5
