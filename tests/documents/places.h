#pragma once
// The grid of the document forms' papers, in inches.
namespace tests {
inline constexpr double column = 9.75 / 144, row = 1 / 6.0;
}
