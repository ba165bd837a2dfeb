#include "resources/string_table.h"
#include <array>

namespace {

struct Entry {
    int number;
    const char* text;
};

constexpr Entry entries[] = {
    {1, "(ARGB)"},
    {2, "(Metal)"},
    {3, "(Pattern)"},
    {4, "Color:"},
    {5, "BackColor:"},
    {6, "EdgeColor:"},
    {7, "{xLabel}:{value}"},
    {8, "General"},
    {9, "Title"},
    {10, "FontColor:"},
    {11, "DataLabel"},
    {12, "{value}"},
    {13, "Legend"},
    {14, "PlotArea"},
    {15, "Background"},
    {16, "Axis"},
    {17, "Layer"},
    {18, "GridColor:"},
    {19, "LineColor:"},
    {20, "AltColor:"},
    {21, "Q1:"},
    {22, "Q2:"},
    {23, "Q3:"},
    {24, "Q4:"},
    {25, "Axis %d"},
    {26, "(Default)"},
    {27, "Select anyone."},
    {28, "Select anyone."},
    {29, "Warning"},
    {30, "Layer %d ( %s )"},
    {31, "Bar"},
    {32, "Line"},
    {33, "Scatter(Bubble)"},
    {34, "Area"},
    {35, "BoxWhisker"},
    {36, "Box"},
    {37, "HLOC"},
    {38, "Gantt"},
    {39, "CandleStick"},
    {40, "Bar Layer"},
    {41, "Line Layer"},
    {42, "Scatter(Bubble) Layer"},
    {43, "Area Layer"},
    {44, "BoxWhisker Layer"},
    {45, "Box Layer"},
    {46, "HLOC Layer"},
    {47, "Gantt Layer"},
    {48, "CandleStick Layer"},
    {49, "AreaColor:"},
    {50, "Color:"},
    {51, "BoxGroup %d ( %s )"},
    {52, "Select anyone."},
    {53, "FillColor:"},
    {54, "WhiskerColor:"},
    {55, "RiseColor:"},
    {56, "FallColor:"},
    {57, "GanttGroup %d ( %s )"},
    {58, "Select anyone."},
    {59, "UpColor:"},
    {60, "DownColor:"},
    {61, "SymbolColor:"},
    {62, "Tick"},
    {63, "Scale"},
    {64, "Title and Label"},
    {65, "Label"},
    {66, "Bar"},
    {67, "Sample Line"},
    {68, "Line"},
    {69, "Scatter"},
    {70, "Bubble"},
    {71, "Area"},
    {72, "BoxWhisker"},
    {73, "Box"},
    {74, "HLOC"},
    {75, "Gantt"},
    {76, "All Image Files (*.png;*.jpeg;*.jpg;*.gif;*.wbmp;*.wmp)|*.png;*.jpeg;*.jpg;*.gif;*.wbmp;*.wmp|"
         "PNG (*.png)|*.png|JPEG (*.jpeg;*.jpg)|*.jpeg;*jpg|GIF (*.gif)|*.gif|WMP (*.wbmp;*.wmp)|*.wbmp;*wmp|"
         "All Files (*.*)|*.*||"},
    {77, "Select Image File"},
    {78, "CandleStick"},
    {79, "{value|yyyy/mm/dd}"},
    {81, "Close Loop Line"},
    {82, "Legend"},
    {83, "Finance Chart Demonstration"},
    {84, "MainChart"},
    {85, "RSI"},
    {86, "Momentum"},
    {87, "SlowStochastic"},
    {88, "MACD"},
    {89, "Select anyone."},
    {90, "Pointer"},
    {91, "Ring"},
    {92, "Zone"},
    {93, "Text"},
    {94, "Pointer %d"},
    {95, "Select anyone."},
    {96, "Ring %d"},
    {97, "Select anyone."},
    {98, "Zone %d ( %s )"},
    {99, "Select anyone."},
    {100, "Text %d ( %s )"},
    {101, "Select anyone."},
    {102, "Line"},
    {103, "Spline"},
    {104, "Area"},
    {105, "SplineArea"},
    {106, "Label %d ( %s )"},
    {113, "{label}"},
    {114, "{value}"},
    {115, "{percent}%"},
    {116, "{dataSetName}"},
    {117, "Title %d ( %s )"},
    {118, "Sector %d"},
    {119, "DataSet %d"},
    {120, "Zone %d"},
    {121, "gulim.ttc"},
    {122, "Sector %d ( %s )"},
    {123, "Label (Angular)"},
    {124, "Label (Radial)"},
    {125, "Zone (Angular)"},
    {126, "Zone (Radial)"},
    {127, "Zone %d"},
};

constexpr auto textByNumber = [] {
    std::array<const char*, std::end(entries)[-1].number + 1> texts{};
    texts.fill("");
    for (const Entry& entry : entries)
        texts[static_cast<std::size_t>(entry.number)] = entry.text;
    return texts;
}();

} // namespace

const char* LoadChartString(int number) {
    const bool listed = number >= 0 && number < std::ssize(textByNumber);
    return listed ? textByNumber[static_cast<std::size_t>(number)] : "";
}
