#pragma once
// The list of a chart's layers. Whatever the kind of chart, its manager owns the layers, and a dialog edits a
// copy that replaces the layer.

#include "editors/framework/object_list.h"

#include <charteditors/chart_string.h>

/// "Layer 2 ( Line )", with the name of the layer behind it if it has one.
QString LayerCaption(int row, const char* kind, const CChartString& name);

/// What a list of the layers of `layers` asks for. `edit` runs the dialog for a copy of a layer, or for a new
/// one (null), and gives a clone of the result, null when it was cancelled. `kind` names the kind of a layer.
template <class Manager, class Layer>
CObjects LayerObjects(Manager& layers, std::function<Layer*(Layer*)> edit,
                      std::function<const char*(const Layer&)> kind) {
    return {.count = [&layers] { return layers.GetLayerCount(); },
            .caption =
                [&layers, kind](int row) {
                    const Layer& layer = *layers.GetLayer(row);
                    return LayerCaption(row, kind(layer), layer.m_name);
                },
            .add =
                [&layers, edit] {
                    Layer* made = edit(nullptr);
                    if (made != nullptr)
                        layers.AddLayer(made);
                    return made != nullptr;
                },
            .erase = [&layers](int row) { layers.DeleteLayer(row); },
            .modify =
                [&layers, edit](int row) {
                    Layer* made = edit(layers.GetLayer(row));
                    if (made != nullptr) {
                        layers.DeleteLayer(row);
                        layers.InsertLayer(made, row);
                    }
                    return made != nullptr;
                },
            .member = CMember::Of(layers)};
}
