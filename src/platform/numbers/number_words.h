// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace rbt {

/// Towards zero.
double Fix(double x);
/// Down to the next whole number: Int(-0.5) is -1.
double Int(double x);
/// To the nearest whole number, halves to the even neighbour.
double Round(double x);
/// Rounds like `Round` and checks the range of a 16-bit or 32-bit signed integer; beyond it, or NaN:
/// `overflow`. `where` names the value in the fault.
std::int16_t ToInt16(double x, std::string_view where);
std::int32_t ToInt32(double x, std::string_view where);

/// 32-bit signed arithmetic that throws `overflow` instead of wrapping.
std::int32_t AddInt32(std::int32_t a, std::int32_t b, std::string_view where);
std::int32_t MultiplyInt32(std::int32_t a, std::int32_t b, std::string_view where);

/// The number at the start of a text, blanks, tabs and line feeds skipped, 0 when there is none: Val(" 12
/// 3x") is 123, Val("-.5") is -0.5, Val("1e3") is 1000, Val("&HFF") is 255. Never faults: a number beyond a
/// double's range is infinite.
double LeadingNumber(std::string_view text);

/// The whole text as a number, the way a value stored as text is turned into one: surrounding blanks pass,
/// thousands separators pass, anything else that is no number (an empty text too) throws `type mismatch`, and
/// a number beyond a double's range `overflow`. "True" is -1 and "False" is 0, in any letter case.
double NumberOfText(std::string_view text, std::string_view where);

/// Decimal text of a double, 15 significant digits with the trailing zeros taken off: 1200.0 gives "1200",
/// 0.1 + 0.2 "0.3", 1.5e-7 "0.00000015". With an exponent from 1E+15 up, and where more than 15 places would
/// stand behind the point: 1.0 / 30 gives "3.33333333333333E-02".
std::string ShortestDecimal(double x);

}  // namespace rbt
