#include "style/style_reader.h"
#include "style/style_text.h"
#include "style/style_writer.h"
#include <QJsonDocument>
#include <chartstyle/chartstyle.h>
#include <new>
#include <utility>

struct CChartStyleAccess {
    static void Set(CChartStyleText& text, QByteArray bytes) {
        delete static_cast<QByteArray*>(std::exchange(text.m_bytes, nullptr));
        if (!bytes.isEmpty())
            text.m_bytes = new QByteArray(std::move(bytes));
    }
};

CChartStyleText::CChartStyleText() : m_bytes(nullptr) {}

CChartStyleText::~CChartStyleText() {
    delete static_cast<QByteArray*>(m_bytes);
}

const char* CChartStyleText::Data() const {
    return m_bytes ? static_cast<QByteArray*>(m_bytes)->constData() : "";
}

std::size_t CChartStyleText::Size() const {
    return m_bytes ? static_cast<std::size_t>(static_cast<QByteArray*>(m_bytes)->size()) : 0;
}

namespace {

using namespace style;

constexpr const char* kKinds[] = {"",        "layout", "xy",           "pie",
                                  "finance", "polar",  "angularMeter", "linearMeter"};

constexpr ChartStyleKind KindFor(const CChartLayout*) {
    return ChartStyleKind::Layout;
}
constexpr ChartStyleKind KindFor(const CXYChart*) {
    return ChartStyleKind::XY;
}
constexpr ChartStyleKind KindFor(const CPieChart*) {
    return ChartStyleKind::Pie;
}
constexpr ChartStyleKind KindFor(const CFinanceChart*) {
    return ChartStyleKind::Finance;
}
constexpr ChartStyleKind KindFor(const CPolarChart*) {
    return ChartStyleKind::Polar;
}
constexpr ChartStyleKind KindFor(const CAngularMeter*) {
    return ChartStyleKind::AngularMeter;
}
constexpr ChartStyleKind KindFor(const CLinearMeter*) {
    return ChartStyleKind::LinearMeter;
}

QByteArray View(const char* text, std::size_t size) {
    // What is beyond the limit need not be looked at to be refused.
    const auto seen = std::min<std::size_t>(text ? size : 0, static_cast<std::size_t>(kMaxBytes) + 1);
    return QByteArray::fromRawData(text, static_cast<qsizetype>(seen));
}

ChartStyleKind KindOf(const QJsonObject& style) {
    if (!style[u"chartStyle"].isDouble())
        return ChartStyleKind::None;
    const QString kind = style[u"kind"].toString();
    for (int i = 1; i < std::ssize(kKinds); ++i)
        if (kind == QLatin1String(kKinds[i]))
            return static_cast<ChartStyleKind>(i);
    return ChartStyleKind::None;
}

/// `fresh` with what only `old` holds, key by key and item by item.
QJsonValue Merged(const QJsonValue& old, const QJsonValue& fresh) {
    if (old.isObject() && fresh.isObject()) {
        QJsonObject merged = old.toObject();
        const QJsonObject object = fresh.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            merged[it.key()] = Merged(merged[it.key()], *it);
        return merged;
    }
    if (old.isArray() && fresh.isArray()) {
        QJsonArray merged = fresh.toArray();
        const QJsonArray before = old.toArray();
        for (int i = 0; i < std::min(merged.size(), before.size()); ++i)
            merged[i] = Merged(before[i], merged[i]);
        return merged;
    }
    return fresh;
}

template <class Chart>
QJsonObject StyleOf(const Chart& chart, const CChartLayout* layout) {
    QJsonObject style{{QStringLiteral("chartStyle"), kVersion},
                      {QStringLiteral("kind"), QLatin1String(kKinds[static_cast<int>(KindFor(&chart))])}};
    if constexpr (!std::is_same_v<Chart, CChartLayout>)
        style.insert(QStringLiteral("chart"), Writer().Fields(chart));
    if (layout)
        style.insert(QStringLiteral("layout"), Writer().Fields(*layout));
    return style;
}

template <class Chart>
bool Merge(const QByteArray& old, const Chart& chart, const CChartLayout* layout, CChartStyleText& text) {
    CChartStyleAccess::Set(text, {});
    try {
        QJsonObject before;
        try {
            before = old.isEmpty() ? QJsonObject() : Parse(old);
        } catch (const BadStyle&) { // counts as empty
        }
        if (KindOf(before) != KindFor(&chart))
            before = {};
        const QJsonObject merged = Merged(before, StyleOf(chart, layout)).toObject();
        CChartStyleAccess::Set(text, QJsonDocument(merged).toJson());
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

/// The remarks on a text that could be read, a line each.
QByteArray Remarks(const QByteArray& text, const QJsonObject& style, const QStringList& unknown) {
    QString lines;
    if (const double version = style[u"chartStyle"].toDouble(); version > kVersion)
        lines +=
            QStringLiteral(
                "line %1: chartStyle: version %2 is newer than this library, which reads what it knows\n")
                .arg(LineOf(text, QStringLiteral("chartStyle")))
                .arg(version);
    for (const QString& path : unknown)
        lines += QStringLiteral("line %1: %2: unknown\n").arg(LineOf(text, path)).arg(path);
    return lines.toUtf8();
}

/// Reads what the text says of `chart` and `layout`, both or neither. `chart` may be null: the layout alone.
template <class Chart>
ChartStyleResult Read(const QByteArray& text, Chart* chart, CChartLayout* layout, CChartStyleText& report) {
    CChartStyleAccess::Set(report, {});
    try {
        QJsonObject style;
        try {
            style = Parse(text);
            const ChartStyleKind kind = KindOf(style);
            if (kind == ChartStyleKind::None)
                throw BadStyle({}, "no chart style");
            if (chart && kind != KindFor(chart)) {
                CChartStyleAccess::Set(report, "line 1: kind: another kind of chart\n");
                return ChartStyleResult::OtherKind;
            }
            Reader reader;
            Chart newChart = chart ? *chart : Chart();
            CChartLayout newLayout = layout ? *layout : CChartLayout();
            if (chart && style.contains(u"chart"))
                reader.Read(QStringLiteral("chart"), style[u"chart"], newChart);
            if (layout && style.contains(u"layout"))
                reader.Read(QStringLiteral("layout"), style[u"layout"], newLayout);
            CChartStyleAccess::Set(report, Remarks(text, style, reader.Unknown()));
            if (chart)
                *chart = newChart;
            if (layout)
                *layout = newLayout;
            return ChartStyleResult::Ok;
        } catch (const BadStyle& bad) {
            const bool placed = bad.path.startsWith(u"line ");
            const QString where =
                placed ? bad.path : QStringLiteral("line %1: %2").arg(LineOf(text, bad.path)).arg(bad.path);
            CChartStyleAccess::Set(
                report, (where + QStringLiteral(": %1\n").arg(QLatin1String(bad.what()))).toUtf8());
            return ChartStyleResult::BadText;
        }
    } catch (const std::bad_alloc&) {
        return ChartStyleResult::BadText;
    }
}

} // namespace

ChartStyleKind ChartStyleKindOf(const char* text, std::size_t size) {
    try {
        return KindOf(Parse(View(text, size)));
    } catch (const std::exception&) {
        return ChartStyleKind::None;
    }
}

#define DEFINE_STYLE(Chart)                                                                                  \
    bool WriteChartStyle(const Chart& chart, const CChartLayout* layout, CChartStyleText& text) {            \
        return Merge({}, chart, layout, text);                                                               \
    }                                                                                                        \
    ChartStyleResult ReadChartStyle(const char* text, std::size_t size, Chart& chart, CChartLayout* layout,  \
                                    CChartStyleText& report) {                                               \
        return Read(View(text, size), &chart, layout, report);                                               \
    }                                                                                                        \
    bool MergeChartStyle(const char* old, std::size_t size, const Chart& chart, const CChartLayout* layout,  \
                         CChartStyleText& text) {                                                            \
        return Merge(View(old, size), chart, layout, text);                                                  \
    }

DEFINE_STYLE(CXYChart)
DEFINE_STYLE(CPieChart)
DEFINE_STYLE(CFinanceChart)
DEFINE_STYLE(CPolarChart)
DEFINE_STYLE(CAngularMeter)
DEFINE_STYLE(CLinearMeter)

bool WriteChartStyle(const CChartLayout& layout, CChartStyleText& text) {
    return Merge({}, layout, &layout, text);
}

ChartStyleResult ReadChartStyle(const char* text, std::size_t size, CChartLayout& layout,
                                CChartStyleText& report) {
    return Read<CPieChart>(View(text, size), nullptr, &layout, report);
}

bool MergeChartStyle(const char* old, std::size_t size, const CChartLayout& layout, CChartStyleText& text) {
    return Merge(View(old, size), layout, &layout, text);
}
