#include "tests/model/surface_fake.h"
#include <chartdraw/surface.h>
#include <sstream>

namespace model_test {
std::vector<std::string> surfaceCalls;

namespace {
template <class... Arguments> void record(const char* name, const Arguments&... arguments) {
    std::ostringstream call;
    call << name << '(';
    const char* separator = "";
    ((call << separator << arguments, separator = ", "), ...);
    call << ')';
    surfaceCalls.push_back(call.str());
}
} // namespace
} // namespace model_test

extern "C" {
int CBaseChart_patternColor2(BaseChart*, const char* imageFile, int startX, int startY) {
    model_test::record("patternColor2", imageFile, startX, startY);
    return 71;
}

int CChart_metalColor(int base, int angle) {
    model_test::record("metalColor", base, angle);
    return 72;
}

int CChart_softLighting(int direction, int effect) {
    model_test::record("softLighting", direction, effect);
    return 73;
}

int CChart_glassEffect(int glareSize, int direction, int effect) {
    model_test::record("glassEffect", glareSize, direction, effect);
    return 74;
}

int CChart_encodeFilter(int type, int labelStep, double initialMargin) {
    return type * 1000 + labelStep * 10 + static_cast<int>(initialMargin);
}

/// A time that can be read: year, month and day as decimal digits, and a fraction that gives away a clock time.
double CChart_chartTime(int year, int month, int day, int hour, int minute, int second) {
    return year * 10000.0 + month * 100.0 + day + (hour + minute + second) / 1000.0;
}
} // extern "C"
