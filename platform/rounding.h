#pragma once

/// `value` rounded half away from zero to `digits` decimals. The scaled magnitude passes through a signed
/// 32-bit integer of which the low bits are kept, so that with two digits 21474836.48 and more wrap around.
/// With less than one digit: the value rounded up, its sign given twice.
double RoundTo(double value, int digits);
