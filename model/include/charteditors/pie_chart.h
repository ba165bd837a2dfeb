#pragma once

/// @file
/// The look of a pie chart.

#include <charteditors/chart_color.h>
#include <charteditors/containers.h>

/// One sector of a pie.
class CHARTEDITORS_API CPieChartSector {
public:
    CPieChartSector();
    CPieChartSector(const CPieChartSector& other);
    CPieChartSector& operator=(const CPieChartSector& other);
    ~CPieChartSector();

    bool m_showExplode = false; ///< Whether the sector is moved out of the pie. Default false.
    bool m_useDistance = false; ///< Whether m_distance says how far; else the library chooses. Default false.
    std::int32_t m_distance = 0; ///< Pixels, 0 or more. Default 0.
    CChartColor m_color;         ///< Default General 0.
    CChartString m_text;         ///< The sector's name. Default empty.
};

/// A pie chart.
class CHARTEDITORS_API CPieChart {
public:
    CPieChart();
    CPieChart(const CPieChart& other);
    CPieChart& operator=(const CPieChart& other);
    ~CPieChart();

    double m_startAngle = 0;           ///< Degrees clockwise from straight up. Default 0.
    bool m_clockWise = true;           ///< Order of the sectors. Default true.
    std::int32_t m_labelLayout = 1;    ///< 0 labels at the sides, 1 around the circle. Default 1.
    std::int32_t m_labelPosition = -1; ///< Pixels between pie and label; less than 0: automatic. Default -1.
    std::int32_t m_labelAlignment = 5; ///< Alignment code of the labels' text boxes; the pie editor does not
                                       ///< show it. Default 5, centre.
    bool m_show3D = false;             ///< Default false.
    bool m_shadow3D = false;           ///< Depth drawn as a shadow. Default false.
    std::int32_t m_depth3D = 1;        ///< Pixels, 0 or more. Default 1.
    double m_angle3D = 0;              ///< Degrees, 0 to 90 unless m_shadow3D. Default 0.
    bool m_useDonut = false;           ///< Default false.
    std::int32_t m_donutInnerRadius = 50; ///< Percent of the radius, 0 to 100. Default 50.
    CPieChartSectors m_sectors;           ///< Default empty.
    CChartColor m_edgeColor;              ///< Of all sectors. Default General 0xFF000000.
    CChartColor m_joinLineColor;          ///< From pie to label. Default General 0.
};
