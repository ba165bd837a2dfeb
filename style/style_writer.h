#pragma once
// Value objects into JSON, by the tables of their fields.

#include "model/fields/finance.h"
#include "model/fields/layout.h"
#include "model/fields/round.h"
#include "model/fields/shared.h"
#include "model/fields/xy.h"
#include "platform/narrow_text.h"
#include <QJsonArray>
#include <QJsonObject>
#include <charteditors/charteditors.h>
#include <cmath>

namespace style {

template <class List>
concept Container = requires(const List& list) {
    list.begin();
};

inline QString KeyOf(std::string_view name) {
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

class Writer {
public:
    template <model::HasFields Object>
    QJsonObject Fields(const Object& object) {
        if constexpr (std::is_same_v<Object, CXYChart>)
            m_axes = &object.m_axes;
        QJsonObject json;
        model::EachField(object, [&](const auto& field, const auto& value) {
            json.insert(KeyOf(field.name), Of(value, field.words));
        });
        return json;
    }

private:
    static QJsonValue Number(std::int64_t code, model::Words words) {
        for (const model::Word& word : words)
            if (word.code == code)
                return KeyOf(word.word);
        return qint64{code};
    }
    QJsonValue Of(std::int32_t value, model::Words words) { return Number(value, words); }
    QJsonValue Of(unsigned char value, model::Words words) { return Number(value, words); }
    QJsonValue Of(bool value, model::Words) { return value; }
    QJsonValue Of(double value, model::Words) {
        if (std::isnan(value))
            return QStringLiteral("nan");
        if (std::isinf(value))
            return value > 0 ? QStringLiteral("inf") : QStringLiteral("-inf");
        return value == 0 && std::signbit(value) ? QJsonValue(QStringLiteral("-0")) : QJsonValue(value);
    }
    QJsonValue Of(std::uint32_t color, model::Words) {
        return QStringLiteral("0x") + QStringLiteral("%1").arg(color, 8, 16, QLatin1Char('0')).toUpper();
    }
    QJsonValue Of(const CChartString& text, model::Words) {
        return QString::fromStdString(platform::NarrowToUtf8(text.data()));
    }
    QJsonValue Of(const std::int32_t (&order)[5], model::Words words) {
        QJsonArray items;
        for (const std::int32_t item : order)
            items.append(Number(item, words));
        return items;
    }
    QJsonValue Of(CXYChartAxis* axis, model::Words) {
        const int index = m_axes ? m_axes->GetAxisIndex(axis) : -1;
        return index < 0 ? QJsonValue() : QJsonValue(index);
    }
    template <model::HasFields Object>
    QJsonValue Of(const Object& object, model::Words) {
        return Fields(object);
    }
    QJsonValue Of(const Container auto& list, model::Words) {
        QJsonArray items;
        for (int i = 0; i < list.size(); ++i)
            items.append(Of(list[i], {}));
        return items;
    }
    QJsonValue Of(const CXYChartAxisMgr& axes, model::Words) {
        QJsonArray items;
        for (int i = 0; i < axes.GetAxisCount(); ++i)
            items.append(Fields(*axes.GetAxis(i)));
        return items;
    }
    QJsonValue Of(const CXYChartLayerMgr& layers, model::Words) { return Layers(layers); }
    QJsonValue Of(const CPolarLayerMgr& layers, model::Words) { return Layers(layers); }
    QJsonValue Layers(const auto& layers) {
        QJsonArray items;
        for (int i = 0; i < layers.GetLayerCount(); ++i) {
            const auto* layer = layers.GetLayer(i);
            if (layer)
                model::KindsOf<std::remove_cvref_t<decltype(*layer)>>::With(
                    *layer, [&](const auto& kind) { items.append(Fields(kind)); });
        }
        return items;
    }

    const CXYChartAxisMgr* m_axes = nullptr;
};

} // namespace style
