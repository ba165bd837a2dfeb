#pragma once

// A family of layers: what the managers' static factories do by the number of a kind. The numbers are the
// positions of `Kinds`.

#include "model/src/owned_list.h"
#include <memory>
#include <new>

namespace model {

template <class Layer, class... Kinds>
class LayerFamily {
public:
    /// A new default layer, or null for a number out of range.
    static std::unique_ptr<Layer> create(int type) {
        std::unique_ptr<Layer> layer;
        withKind(type, [&]<class Kind>() { layer = std::make_unique<Kind>(); });
        return layer;
    }

    /// Copies between two layers of one kind. The casts also catch a type number that belies its object.
    static bool copy(const Layer& from, Layer& to) {
        bool copied = false;
        if (from.GetType() == to.GetType())
            withKind(from.GetType(), [&]<class Kind>() {
                const auto* source = dynamic_cast<const Kind*>(&from);
                auto* target = dynamic_cast<Kind*>(&to);
                copied = source && target;
                if (copied)
                    *target = *source;
            });
        return copied;
    }

    /// A copy, or null for a layer of no kind.
    static std::unique_ptr<Layer> clone(const Layer& layer) {
        std::unique_ptr<Layer> made = create(layer.GetType());
        return made && copy(layer, *made) ? std::move(made) : nullptr;
    }

    /// The layer that `make` gives, for the host to own; null when memory runs out.
    template <class Make>
    static Layer* orNull(Make make) {
        try {
            return make().release();
        } catch (const std::bad_alloc&) {
            return nullptr;
        }
    }

private:
    /// Calls `action` for the kind of that number.
    template <class Action>
    static void withKind(int type, Action action) {
        int number = 0;
        ((number++ == type ? action.template operator()<Kinds>() : void()), ...);
    }
};

} // namespace model

/// The operations that both managers of layers have, on their member `m_layers`.
#define DEFINE_LAYER_MANAGER(Manager, Layer, Family)                                                         \
    Manager::Manager() : m_layers(nullptr) {}                                                                \
    Manager::Manager(const Manager& other) : Manager() {                                                     \
        *this = other;                                                                                       \
    }                                                                                                        \
    Manager& Manager::operator=(const Manager& other) {                                                      \
        model::assignObjects<Layer>(m_layers, other.m_layers, Family::clone);                                \
        return *this;                                                                                        \
    }                                                                                                        \
    Manager::~Manager() {                                                                                    \
        model::freeObjects<Layer>(m_layers);                                                                 \
    }                                                                                                        \
    void Manager::DeleteContents() {                                                                         \
        model::clearObjects<Layer>(m_layers);                                                                \
    }                                                                                                        \
    int Manager::GetLayerCount() const {                                                                     \
        return model::countOf<Layer*>(m_layers);                                                             \
    }                                                                                                        \
    Layer* Manager::GetLayer(int index) const {                                                              \
        return model::objectAt<Layer>(m_layers, index);                                                      \
    }                                                                                                        \
    int Manager::AddLayer(Layer* layer) {                                                                    \
        return model::addObject(m_layers, layer);                                                            \
    }                                                                                                        \
    void Manager::InsertLayer(Layer* layer, int index) {                                                     \
        model::insertObject(m_layers, layer, index);                                                         \
    }                                                                                                        \
    void Manager::DeleteLayer(int index) {                                                                   \
        model::deleteObject<Layer>(m_layers, index);                                                         \
    }                                                                                                        \
    Layer* Manager::CreateLayer(int type) {                                                                  \
        return Family::orNull([&] { return Family::create(type); });                                         \
    }                                                                                                        \
    int Manager::CopyLayer(Layer* from, Layer* to) {                                                         \
        return from && to && Family::copy(*from, *to) ? 1 : 0;                                               \
    }                                                                                                        \
    Layer* Manager::CloneLayer(Layer* layer) {                                                               \
        return layer ? Family::orNull([&] { return Family::clone(*layer); }) : nullptr;                      \
    }
