#pragma once
// JSON into value objects, by the tables of their fields. What the JSON does not name stays as it is.

#include "style/style_text.h"
#include "style/style_writer.h"
#include <QStringList>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace style {

class Reader {
public:
    /// Keys that no field has, as paths.
    const QStringList& Unknown() const { return m_unknown; }

    /// Throws BadStyle at a value that cannot be taken; `object` is then half read.
    template <model::HasFields Object>
    void Read(const QString& path, const QJsonValue& json, Object& object) {
        if (!json.isObject())
            throw BadStyle(path, "expected an object");
        const QJsonObject fields = json.toObject();
        QStringList unknown = fields.keys();
        model::EachField(object, [&](const auto& field, auto& value) {
            const QString key = KeyOf(field.name);
            unknown.removeOne(key);
            if (const auto found = fields.find(key); found != fields.end())
                Take(Below(path, key), *found, value, field.words);
        });
        for (const QString& key : unknown)
            m_unknown += Below(path, key);
        if constexpr (std::is_same_v<Object, CXYChart>)
            Relate(object);
    }

private:
    static std::int32_t Code(const QString& path, const QJsonValue& json, model::Words words) {
        for (const model::Word& word : words)
            if (json.toString() == KeyOf(word.word))
                return static_cast<std::int32_t>(word.code);
        const double number = json.toDouble(std::numeric_limits<double>::quiet_NaN());
        if (!(number >= std::numeric_limits<std::int32_t>::min() &&
              number <= std::numeric_limits<std::int32_t>::max()) ||
            number != std::trunc(number))
            throw BadStyle(path, words.empty() ? "expected a whole number"
                                               : "expected one of its words or a number");
        return static_cast<std::int32_t>(number);
    }
    static QJsonArray Array(const QString& path, const QJsonValue& json) {
        if (!json.isArray())
            throw BadStyle(path, "expected a list");
        if (json.toArray().size() > kMaxItems)
            throw BadStyle(path, "more than 10,000 items");
        return json.toArray();
    }

    void Take(const QString& path, const QJsonValue& json, std::int32_t& value, model::Words words) {
        value = Code(path, json, words);
    }
    void Take(const QString& path, const QJsonValue& json, unsigned char& value, model::Words words) {
        const std::int32_t code = Code(path, json, words);
        if (code < 0 || code > 255)
            throw BadStyle(path, "expected 0 to 255");
        value = static_cast<unsigned char>(code);
    }
    void Take(const QString& path, const QJsonValue& json, bool& value, model::Words) {
        if (!json.isBool())
            throw BadStyle(path, "expected true or false");
        value = json.toBool();
    }
    void Take(const QString& path, const QJsonValue& json, double& value, model::Words) {
        const QString text = json.toString();
        if (json.isDouble())
            value = json.toDouble();
        else if (text == u"nan")
            value = std::numeric_limits<double>::quiet_NaN();
        else if (text == u"inf" || text == u"-inf")
            value = (text == u"inf" ? 1 : -1) * std::numeric_limits<double>::infinity();
        else if (text == u"-0")
            value = -0.0;
        else
            throw BadStyle(path, "expected a number");
    }
    void Take(const QString& path, const QJsonValue& json, std::uint32_t& color, model::Words) {
        const QString text = json.toString();
        bool good = false;
        const std::uint32_t number = text.mid(2).toUInt(&good, 16);
        if (!good || text.size() != 10 || !text.startsWith(u"0x"))
            throw BadStyle(path, "expected a colour, \"0xAARRGGBB\"");
        color = number;
    }
    void Take(const QString& path, const QJsonValue& json, CChartString& text, model::Words) {
        if (!json.isString())
            throw BadStyle(path, "expected a text");
        text = platform::Utf8ToNarrow(json.toString().toStdString()).c_str();
    }
    void Take(const QString& path, const QJsonValue& json, std::int32_t (&order)[5], model::Words words) {
        const QJsonArray items = Array(path, json);
        if (items.size() != 5)
            throw BadStyle(path, "expected five panes");
        for (int i = 0; i < 5; ++i)
            order[i] = Code(Below(path, i), items[i], words);
    }
    void Take(const QString& path, const QJsonValue& json, CXYChartAxis*& axis, model::Words) {
        m_axisNames.push_back({&axis, json.isNull() ? -1 : Code(path, json, {})});
    }
    template <model::HasFields Object>
    void Take(const QString& path, const QJsonValue& json, Object& object, model::Words) {
        Read(path, json, object);
    }
    template <Container List>
    void Take(const QString& path, const QJsonValue& json, List& list, model::Words) {
        List items;
        for (const QJsonArray array = Array(path, json); const QJsonValue& item : array) {
            items.push_back({});
            Take(Below(path, items.size() - 1), item, items[items.size() - 1], {});
        }
        list = items;
    }
    void Take(const QString& path, const QJsonValue& json, CXYChartAxisMgr& axes, model::Words) {
        std::vector<std::unique_ptr<CXYChartAxis>> items;
        for (const QJsonArray array = Array(path, json); const QJsonValue& item : array) {
            items.push_back(std::make_unique<CXYChartAxis>());
            Read(Below(path, std::ssize(items) - 1), item, *items.back());
        }
        axes.DeleteContents();
        for (auto& axis : items) {
            axes.AddAxis(axis.get());
            axis.release();
        }
    }
    void Take(const QString& path, const QJsonValue& json, CXYChartLayerMgr& layers, model::Words) {
        TakeLayers<CXYChartLayer>(path, json, layers, model::words::xyLayer);
    }
    void Take(const QString& path, const QJsonValue& json, CPolarLayerMgr& layers, model::Words) {
        TakeLayers<CPolarLayer>(path, json, layers, model::words::polarLayer);
    }
    template <class Layer, class Manager>
    void TakeLayers(const QString& path, const QJsonValue& json, Manager& layers, model::Words kinds) {
        std::vector<std::unique_ptr<Layer>> items;
        for (const QJsonArray array = Array(path, json); const QJsonValue& item : array) {
            const QString here = Below(path, std::ssize(items));
            const int type = Code(Below(here, QStringLiteral("type")), item.toObject()[u"type"], kinds);
            items.emplace_back(Manager::CreateLayer(type));
            Layer* layer = items.back().get();
            const bool read =
                layer && model::KindsOf<Layer>::With(*layer, [&](auto& kind) { Read(here, item, kind); });
            if (!read)
                throw BadStyle(Below(here, QStringLiteral("type")), "no kind of layer");
        }
        layers.DeleteContents();
        for (auto& layer : items) {
            layers.AddLayer(layer.get());
            layer.release();
        }
    }
    /// Turns the indices that were read into the axes of the chart, now that these are there.
    void Relate(CXYChart& chart) {
        for (const AxisName& name : m_axisNames)
            *name.place = nullptr;
        chart.UpdateRelation();
        for (const AxisName& name : m_axisNames)
            *name.place = chart.m_axes.GetSafeAxis(name.index);
    }

    struct AxisName {
        CXYChartAxis** place;
        int index;
    };
    QStringList m_unknown;
    std::vector<AxisName> m_axisNames;
};

} // namespace style
