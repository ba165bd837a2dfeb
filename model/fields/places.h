#pragma once
// Where the values of an object are: each field with its path, its address and its text. Through these a
// control finds the field that it edits, and two objects of one class are told apart and set alike again.

#include "model/fields/type_tag.h"
#include <charteditors/charteditors.h>
#include <string>
#include <vector>

namespace model {

/// A field, or a group of fields, of one object.
struct Place {
    enum Kind {
        Single, ///< A value.
        Group,  ///< An object with fields of its own, whose places follow.
        Whole,  ///< The same, but edited as one value: a colour, a font, an effect, an order.
        List,   ///< Items, whose places follow; the text is their number.
    };
    std::string path; ///< "sectors[1].color.color"; "" for the object itself.
    std::string text; ///< Of a single value or a list, as in Value; else empty.
    Kind kind;
    const void* address; ///< Of the member. Good as long as the lists above it keep their items.
    const void* type;    ///< What stands there, as TypeTag tells; of a layer its kind.
    void (*assign)(void* to, const void* from); ///< Between two places of the type.
    /// For a list of layers: puts a copy of the layer of that index in the place of the one of `to`.
    void (*replace)(void* to, const void* from, int index) = nullptr;
    /// An axis that is followed or stood on: it has a meaning only together with the code before it.
    bool joins = false;
};
using Places = std::vector<Place>;

/// All places of an object, in the order of its fields. Layers count with the fields of their kind.
Places PlacesOf(const CChartLayout& object);
Places PlacesOf(const CXYChart& object);
Places PlacesOf(const CPieChart& object);
Places PlacesOf(const CPolarChart& object);
Places PlacesOf(const CFinanceChart& object);
Places PlacesOf(const CAngularMeter& object);
Places PlacesOf(const CLinearMeter& object);
Places PlacesOf(const CXYChartAxis& object);
Places PlacesOf(const CXYChartLayer& object);
Places PlacesOf(const CPolarLayer& object);

/// The row of an axis in the place of its pointer; -1 for none.
Place JoiningPlace(const char* path, const std::int32_t& row);

/// What a person would call one change: a value, a colour or font as a whole, a list that has got longer or
/// shorter, a layer that has become one of another kind.
struct Change {
    std::string path;
    std::string from, to; ///< As texts.
    friend bool operator==(const Change&, const Change&) = default;
};
std::vector<Change> Changes(const Places& from, const Places& to);

/// The place of a path, null if there is none.
const Place* FindPlace(const Places& places, const std::string& path);

/// Sets one change back: what stands at `path` in the object of `to` becomes a copy of what `from` has there.
/// `places` gives the places of that object anew. Pointers to axes are turned to the object's own axes.
template <class Again>
void Assign(const std::string& path, const Places& to, const Places& from, Again places);

/// The parts of Assign.
bool AssignAt(const std::string& path, const Places& to, const Places& from);
void Relate(const std::string& path, const Places& now, const Places& before, const Places& from);

template <class Again>
void Assign(const std::string& path, const Places& to, const Places& from, Again places) {
    if (AssignAt(path, to, from))
        Relate(path, places(), to, from);
}

} // namespace model
