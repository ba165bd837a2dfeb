#include "model/src/owned_list.h"
#include "model/src/value_class.h"
#include "resources/string_table.h"
#include <chartdraw/surface.h>
#include <charteditors/xy_axis.h>
#include <chrono>
#include <new>

namespace {

/// Midnight of a day of this month or, one month on, of the next, as chart time. The day is kept also where
/// the next month has no such day: the drawing library rolls it on.
double midnightOf(const std::chrono::year_month_day& today, int monthsOn) {
    const auto month = today.year() / today.month() + std::chrono::months(monthsOn);
    return CChart_chartTime(static_cast<int>(month.year()),
                            static_cast<int>(static_cast<unsigned>(month.month())),
                            static_cast<int>(static_cast<unsigned>(today.day())), 0, 0, 0);
}

} // namespace

CXYChartAxisTitle::CXYChartAxisTitle() {
    m_backColor.m_color = model::leftToLibrary;
    m_edgeColor.m_color = model::leftToLibrary;
}
DEFINE_VALUE_CLASS(CXYChartAxisTitle)

CXYChartAxis::CXYChartAxis() {
    namespace chrono = std::chrono;
    const chrono::year_month_day today(chrono::floor<chrono::days>(chrono::system_clock::now()));
    m_dateLowerLimit = midnightOf(today, 0);
    m_dateUpperLimit = midnightOf(today, 1);
    m_labelFormat = LoadChartString(ChartText::ValueFormat);
    m_labelBackColor.m_color = model::leftToLibrary;
    m_labelEdgeColor.m_color = model::leftToLibrary;
    m_filter1 = m_filter2 = CChart_encodeFilter(8, 0, 0);
}
DEFINE_VALUE_CLASS(CXYChartAxis)

CXYChartAxisMgr::CXYChartAxisMgr() : m_axes(nullptr) {}

CXYChartAxisMgr::CXYChartAxisMgr(const CXYChartAxisMgr& other) : CXYChartAxisMgr() {
    *this = other;
}

CXYChartAxisMgr& CXYChartAxisMgr::operator=(const CXYChartAxisMgr& other) {
    model::assignObjects<CXYChartAxis>(m_axes, other.m_axes,
                                       [](const CXYChartAxis& axis) { return new CXYChartAxis(axis); });
    return *this;
}

CXYChartAxisMgr::~CXYChartAxisMgr() {
    model::freeObjects<CXYChartAxis>(m_axes);
}

void CXYChartAxisMgr::DeleteContents() {
    model::clearObjects<CXYChartAxis>(m_axes);
}

CXYChartAxis* CXYChartAxisMgr::CreateAxis() {
    try {
        return new CXYChartAxis;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

int CXYChartAxisMgr::GetAxisCount() const {
    return model::countOf<CXYChartAxis*>(m_axes);
}

bool CXYChartAxisMgr::empty() const {
    return GetAxisCount() == 0;
}

CXYChartAxis* CXYChartAxisMgr::GetAxis(int index) const {
    return model::objectAt<CXYChartAxis>(m_axes, index);
}

CXYChartAxis* CXYChartAxisMgr::GetSafeAxis(int index) const {
    return index >= 0 && index < GetAxisCount() ? GetAxis(index) : nullptr;
}

int CXYChartAxisMgr::GetAxisIndex(const CXYChartAxis* axis) const {
    const auto& axes = model::viewList<CXYChartAxis*>(m_axes);
    const auto found = axis ? std::find(axes.begin(), axes.end(), axis) : axes.end();
    return found == axes.end() ? -1 : static_cast<int>(found - axes.begin());
}

CXYChartAxis* CXYChartAxisMgr::SafeAxis(const CXYChartAxis* axis) const {
    return GetSafeAxis(GetAxisIndex(axis));
}

int CXYChartAxisMgr::AddAxis(CXYChartAxis* axis) {
    return model::addObject(m_axes, axis);
}

void CXYChartAxisMgr::SetAxis(CXYChartAxis* axis, int index) {
    model::setObject(m_axes, axis, index);
}

void CXYChartAxisMgr::DeleteAxis(int index) {
    model::deleteObject<CXYChartAxis>(m_axes, index);
}
