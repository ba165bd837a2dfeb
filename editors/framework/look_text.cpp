#include "editors/framework/look_text.h"

#include <chartstyle/chartstyle.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <type_traits>

namespace {

struct Kind {
    ChartStyleKind kind;
    const char* word; ///< in the text
    const char* name; ///< for a person
};
constexpr Kind kKinds[] = {{ChartStyleKind::Layout, "layout", "layout"},
                           {ChartStyleKind::XY, "xy", "XY chart"},
                           {ChartStyleKind::Pie, "pie", "pie chart"},
                           {ChartStyleKind::Finance, "finance", "finance chart"},
                           {ChartStyleKind::Polar, "polar", "polar chart"},
                           {ChartStyleKind::AngularMeter, "angularMeter", "angular meter"},
                           {ChartStyleKind::LinearMeter, "linearMeter", "linear meter"}};

QString NameOf(ChartStyleKind kind) {
    for (const Kind& known : kKinds)
        if (known.kind == kind)
            return QString::fromUtf8(known.name);
    return {};
}

template <class Chart>
bool Write(const Chart& chart, const CChartLayout* layout, CChartStyleText& text) {
    if constexpr (std::is_same_v<Chart, CChartLayout>)
        return WriteChartStyle(chart, text);
    else
        return WriteChartStyle(chart, layout, text);
}

template <class Chart>
ChartStyleResult Read(const QByteArray& text, Chart& chart, CChartStyleText& report) {
    const auto size = static_cast<std::size_t>(text.size());
    if constexpr (std::is_same_v<Chart, CChartLayout>)
        return ReadChartStyle(text.constData(), size, chart, report);
    else
        return ReadChartStyle(text.constData(), size, chart, nullptr, report);
}

QString FirstLine(const CChartStyleText& report) {
    return QString::fromUtf8(report.Data()).section(u'\n', 0, 0);
}

/// Field by field, whatever suits.
template <class Chart>
QString TakeCommon(const QByteArray& text, Chart& chart, ChartStyleKind from) {
    CChartStyleText own;
    if (!Write(chart, nullptr, own))
        return QStringLiteral("Nothing taken: no memory.");
    QJsonObject style = QJsonDocument::fromJson(own.Data()).object();
    const QJsonObject mine = style[u"chart"].toObject();
    const QJsonObject theirs = QJsonDocument::fromJson(text).object()[u"chart"].toObject();
    QStringList taken;
    for (auto field = theirs.begin(); field != theirs.end(); ++field) {
        style[u"chart"] = QJsonObject{{field.key(), *field}};
        CChartStyleText report;
        if (mine.contains(field.key()) &&
            Read(QJsonDocument(style).toJson(), chart, report) == ChartStyleResult::Ok && report.Size() == 0)
            taken += field.key();
    }
    const qsizetype left = theirs.size() - taken.size();
    if (taken.isEmpty())
        return QStringLiteral("Nothing taken: a %1 has nothing in common with this.").arg(NameOf(from));
    constexpr qsizetype kNamed = 3;
    const QString names = taken.mid(0, kNamed).join(QStringLiteral(", ")) +
                          (taken.size() > kNamed ? QStringLiteral(", ...") : QString());
    return QStringLiteral("Took %1 of a %2 (%3), left %4.")
        .arg(QString::number(taken.size()), NameOf(from), names, QString::number(left));
}

} // namespace

template <class Chart>
QByteArray LookText(const Chart& chart, const CChartLayout* layout) {
    CChartStyleText text;
    Write(chart, layout, text);
    return {text.Data(), static_cast<qsizetype>(text.Size())};
}

template <class Chart>
QString TakeLookText(const QByteArray& text, Chart& chart) {
    const ChartStyleKind from = ChartStyleKindOf(text.constData(), static_cast<std::size_t>(text.size()));
    if (from == ChartStyleKind::None)
        return QStringLiteral("Nothing taken: the clipboard holds no look of a chart.");
    CChartStyleText report;
    switch (Read(text, chart, report)) {
    case ChartStyleResult::Ok:
        return report.Size() == 0
                   ? QStringLiteral("Took the look of a %1.").arg(NameOf(from))
                   : QStringLiteral("Took the look of a %1, but for %2").arg(NameOf(from), FirstLine(report));
    case ChartStyleResult::OtherKind:
        return TakeCommon(text, chart, from);
    default:
        return QStringLiteral("Nothing taken: %1").arg(FirstLine(report));
    }
}

#define LOOK_TEXT(Chart)                                                                                     \
    template QByteArray LookText(const Chart& chart, const CChartLayout* layout);                            \
    template QString TakeLookText(const QByteArray& text, Chart& chart)
LOOK_TEXT(CChartLayout);
LOOK_TEXT(CXYChart);
LOOK_TEXT(CPieChart);
LOOK_TEXT(CPolarChart);
LOOK_TEXT(CFinanceChart);
LOOK_TEXT(CAngularMeter);
LOOK_TEXT(CLinearMeter);
