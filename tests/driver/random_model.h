#pragma once
// Value objects with random fields, by the tables of their fields: any number, any code, texts, lists and
// layers.

#include "model/fields/values.h"
#include <limits>
#include <memory>
#include <random>

namespace driver {

class RandomModel {
public:
    explicit RandomModel(unsigned seed) : m_random(seed) {}

    template <model::HasFields Object>
    Object Make() {
        Object object;
        Fill(object, {});
        if constexpr (std::is_same_v<Object, CXYChart>)
            Relate(object);
        return object;
    }

private:
    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    template <model::HasFields Object>
    void Fill(Object& object, model::Words) {
        model::EachField(
            object,
            [&](const auto& field, auto& value) {
                if (field.name != "type" || !std::is_polymorphic_v<Object>) // a layer keeps its kind
                    Fill(value, field.words);
            });
    }
    void Fill(std::int32_t& value, model::Words words) {
        if (!words.empty() && Below(8) != 0)
            value = static_cast<std::int32_t>(
                words[static_cast<std::size_t>(Below(static_cast<int>(words.size())))].code);
        else
            value = Below(8) == 0 ? static_cast<std::int32_t>(m_random()) : Below(601) - 100;
    }
    void Fill(unsigned char& value, model::Words) { value = static_cast<unsigned char>(1 << Below(6)); }
    void Fill(bool& value, model::Words) { value = Below(2) != 0; }
    void Fill(std::uint32_t& value, model::Words) { value = static_cast<std::uint32_t>(m_random()); }
    void Fill(double& value, model::Words) {
        constexpr double kOdd[] = {0.0,
                                   -0.0,
                                   0.1,
                                   1e300,
                                   5e-324,
                                   std::numeric_limits<double>::infinity(),
                                   -std::numeric_limits<double>::infinity(),
                                   std::numeric_limits<double>::quiet_NaN()};
        value = Below(6) == 0 ? kOdd[Below(8)] : std::uniform_real_distribution(-1000.0, 1000.0)(m_random);
    }
    void Fill(CChartString& text, model::Words) {
        constexpr const char* kTexts[] = {
            "", "plain", "two\nlines", "\"quoted\" \\", "\xEA\xB7\xB8\xEB\xA6\xBC", "{value}%"};
        text = kTexts[Below(6)];
    }
    void Fill(std::int32_t (&order)[5], model::Words) {
        for (std::int32_t& pane : order)
            pane = Below(7) - 1;
    }
    void Fill(CXYChartAxis*&, model::Words) {} // see Relate
    template <class List>
    requires requires(List& list) { list.begin(); }
    void Fill(List& list, model::Words) {
        for (int i = Below(4); i > 0; --i) {
            list.push_back({});
            Fill(list[list.size() - 1], {});
        }
    }
    void Fill(CXYChartAxisMgr& axes, model::Words) {
        for (int i = Below(3); i > 0; --i)
            Fill(*axes.GetAxis(axes.AddAxis(CXYChartAxisMgr::CreateAxis())), {});
    }
    template <class Layers>
    requires requires(Layers& layers) { Layers::CreateLayer(0); }
    void Fill(Layers& layers, model::Words) {
        while (Below(4) != 0) {
            auto* layer = Layers::CreateLayer(Below(9));
            if (!layer)
                continue;
            layers.AddLayer(layer);
            model::KindsOf<std::remove_reference_t<decltype(*layer)>>::With(
                *layer, [&](auto& kind) { Fill(kind, {}); });
        }
    }
    void Relate(CXYChart& chart) {
        const auto any = [&]() -> CXYChartAxis* {
            const int index = Below(chart.m_axes.GetAxisCount() + 1) - 1;
            return chart.m_axes.GetSafeAxis(index);
        };
        for (CXYChartAxis* axis : {&chart.m_x2Axis, &chart.m_y2Axis})
            axis->m_syncAxis = any();
        for (int i = 0; i < chart.m_axes.GetAxisCount(); ++i)
            chart.m_axes.GetAxis(i)->m_syncAxis = any();
        for (int i = 0; i < chart.m_layers.GetLayerCount(); ++i)
            chart.m_layers.GetLayer(i)->m_yAxis = any();
    }

    std::mt19937 m_random;
};

} // namespace driver
