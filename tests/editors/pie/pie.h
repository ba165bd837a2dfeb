#pragma once

#include "tests/driver/editor.h"

namespace pie_test {
using driver::Difference;
using driver::Edit;

inline CPieChartSector Sector(const char* text, std::uint32_t color = 0) {
    CPieChartSector sector;
    sector.m_text = text;
    sector.m_color.m_color = color;
    return sector;
}

inline CPieChart PieOf(std::initializer_list<const char*> texts) {
    CPieChart pie;
    for (const char* text : texts) pie.m_sectors.push_back(Sector(text));
    return pie;
}

inline CPieChart UnusualPie() {
    CPieChart pie = PieOf({"one\nof two lines", "", "100 % {value} <*b*>"});
    pie.m_startAngle = 1.0 / 3;
    pie.m_clockWise = false;
    pie.m_labelLayout = 1;
    pie.m_labelPosition = 17;
    pie.m_labelAlignment = 13;
    pie.m_show3D = true;
    pie.m_shadow3D = true;
    pie.m_depth3D = 12;
    pie.m_angle3D = 123.456789;
    pie.m_useDonut = true;
    pie.m_donutInnerRadius = 250; // out of its range, and none of the editor's business until it is edited
    pie.m_edgeColor.m_type = 2;
    pie.m_edgeColor.m_direction = 33;
    pie.m_joinLineColor.m_type = 1;
    pie.m_joinLineColor.m_patternFile = "no such file.png";
    pie.m_sectors[1].m_showExplode = true;
    pie.m_sectors[1].m_useDistance = true;
    pie.m_sectors[1].m_distance = 30;
    return pie;
}
} // namespace pie_test
