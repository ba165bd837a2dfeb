#pragma once
// What the tips of several pages say. A number's tip is followed by its range.

namespace tip {

inline constexpr char kPixels[] = "Pixels";
inline constexpr char kLineWidth[] = "Pixels; 0 for no line";
inline constexpr char kFromLeft[] = "Pixels from the left";
inline constexpr char kFromTop[] = "Pixels from the top";
inline constexpr char kFromCentre[] = "Pixels from the centre";
inline constexpr char kClockwise[] = "Degrees clockwise from straight up";
inline constexpr char kTurned[] = "Degrees counter-clockwise";
inline constexpr char kStacked[] = "Letters stacked from top to bottom";
inline constexpr char kScaleStart[] = "The value at the start of the scale";
inline constexpr char kScaleEnd[] = "The value at the end of the scale";
inline constexpr char kMajorTicks[] = "From one labelled tick to the next; 0 automatic";
inline constexpr char kMinorTicks[] = "From one tick to the next; 0 for none";
inline constexpr char kZoneStart[] = "Where the zone begins on the scale";
inline constexpr char kZoneEnd[] = "Where the zone ends on the scale";
inline constexpr char kTradingDays[] = "Trading days";
inline constexpr char kReverse[] = "Values run the other way";
inline constexpr char kUseLook[] = "Gives the labels this look";

} // namespace tip
