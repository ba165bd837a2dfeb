#pragma once
// What an editor dialog edits, as undo and the list of changes see it: a copy of the host's object that can
// be kept, brought back and compared by the tables of fields.

#include "editors/framework/look_text.h"
#include "model/fields/places.h"

#include <functional>
#include <memory>

class CWorkingCopy {
public:
    /// A copy of the working copy as it was at a time.
    using Kept = std::shared_ptr<const void>;

    CWorkingCopy() = default;
    CWorkingCopy(const CWorkingCopy&) = delete;
    CWorkingCopy& operator=(const CWorkingCopy&) = delete;
    virtual ~CWorkingCopy() = default;

    virtual Kept Keep() const = 0;
    /// A default object.
    virtual Kept Fresh() const = 0;
    virtual void Restore(const Kept& kept) = 0;
    virtual model::Places Places() const = 0;
    virtual model::Places PlacesOf(const Kept& kept) const = 0;

    /// The look as a text; empty for what is no chart by itself.
    virtual QByteArray Look() const { return {}; }
    /// Takes in what such a text says, and gives the line that tells of it. Nothing else changes the copy.
    virtual QString TakeLook(const QByteArray& /*text*/) { return {}; }

    /// Sets one change back to what `kept` has.
    void Take(const std::string& path, const Kept& kept) {
        model::Assign(
            path, Places(), PlacesOf(kept), [this] { return Places(); });
    }
};

/// Of one object of the model.
template <class Object>
class CWorkingObject : public CWorkingCopy {
public:
    /// `layout`, null for none, goes with the look.
    explicit CWorkingObject(Object& object, const CChartLayout* layout)
        : m_object(object), m_layout(layout) {}
    Kept Keep() const override { return std::make_shared<const Object>(m_object); }
    Kept Fresh() const override { return std::make_shared<const Object>(); }
    void Restore(const Kept& kept) override { m_object = *static_cast<const Object*>(kept.get()); }
    model::Places Places() const override { return model::PlacesOf(m_object); }
    model::Places PlacesOf(const Kept& kept) const override {
        return model::PlacesOf(*static_cast<const Object*>(kept.get()));
    }
    QByteArray Look() const override { return LookText(m_object, m_layout); }
    QString TakeLook(const QByteArray& text) override { return TakeLookText(text, m_object); }

private:
    Object& m_object;
    const CChartLayout* m_layout;
};

template <class Object>
std::shared_ptr<CWorkingCopy> WorkingCopy(Object& object, const CChartLayout* layout = nullptr) {
    return std::make_shared<CWorkingObject<Object>>(object, layout);
}

/// Of a layer whose kind can change: one layer of each kind, of which one is the present one.
template <class Manager, class Layer>
class CWorkingLayer : public CWorkingCopy {
public:
    /// `layers` gives the layer of a kind, `count` how many kinds there are; `show` has the preview draw that
    /// layer; `name`, null for none, is shared by the kinds.
    CWorkingLayer(std::function<Layer&(int kind)> layers, int count, std::int32_t& kind,
                  std::function<void(Layer&)> show, CChartString* name = nullptr)
        : m_layers(std::move(layers)), m_count(count), m_kind(kind), m_show(std::move(show)), m_name(name) {}

    Kept Keep() const override { return KeepAs(m_layers, m_kind, m_name); }
    Kept Fresh() const override {
        std::vector<std::unique_ptr<Layer>> fresh;
        for (int kind = 0; kind < m_count; ++kind)
            fresh.emplace_back(Manager::CreateLayer(kind));
        const CChartString none;
        return KeepAs([&fresh](int kind) -> Layer& { return *fresh[static_cast<std::size_t>(kind)]; }, m_kind,
                      m_name == nullptr ? nullptr : &none);
    }
    void Restore(const Kept& kept) override {
        const State& state = *static_cast<const State*>(kept.get());
        for (int kind = 0; kind < m_count; ++kind)
            Manager::CopyLayer(state.layers[static_cast<std::size_t>(kind)].get(), &m_layers(kind));
        m_kind = state.kind;
        if (m_name != nullptr)
            *m_name = state.name;
        m_show(m_layers(m_kind));
    }
    model::Places Places() const override { return PlacesAs(m_layers(m_kind), m_kind, m_name); }
    model::Places PlacesOf(const Kept& kept) const override {
        const State& state = *static_cast<const State*>(kept.get());
        return PlacesAs(*state.layers[static_cast<std::size_t>(state.kind)], state.kind,
                        m_name == nullptr ? nullptr : &state.name);
    }

private:
    struct State {
        std::vector<std::unique_ptr<Layer>> layers;
        std::int32_t kind;
        CChartString name;
    };
    template <class Layers>
    Kept KeepAs(const Layers& layers, std::int32_t kind, const CChartString* name) const {
        auto state = std::make_shared<State>();
        for (int i = 0; i < m_count; ++i)
            state->layers.emplace_back(Manager::CloneLayer(&layers(i)));
        state->kind = kind;
        if (name != nullptr)
            state->name = *name;
        return state;
    }
    /// The dialog edits the kind and the name beside the layer.
    model::Places PlacesAs(const Layer& layer, const std::int32_t& kind, const CChartString* name) const {
        model::Places places = model::PlacesOf(layer);
        for (model::Place& place : places) {
            if (place.path == "type") {
                place.address = &kind;
            } else if (place.path == "name" && name != nullptr) {
                place.text = name->data();
                place.address = name;
            }
        }
        return places;
    }

    std::function<Layer&(int)> m_layers;
    int m_count;
    std::int32_t& m_kind;
    std::function<void(Layer&)> m_show;
    CChartString* m_name;
};
