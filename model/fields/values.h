#pragma once
// All single values below an object, each with its path and as a text: what two objects are compared by.

#include "model/fields/finance.h"
#include "model/fields/layout.h"
#include "model/fields/round.h"
#include "model/fields/shared.h"
#include "model/fields/xy.h"
#include <string>
#include <vector>

namespace model {

/// A single value: "sectors[1].color.color" and "0x00ff0000". A list stands as its length, before its items;
/// an axis pointer as the index of the axis in its chart, "none", or "gone" for one that is no axis of the
/// chart.
struct Value {
    std::string path;
    std::string text;
    friend bool operator==(const Value&, const Value&) = default;
};

/// The values of an object in the order of its fields. Layers count with the fields of their kind.
std::vector<Value> Values(const CChartLayout& object);
std::vector<Value> Values(const CXYChart& object);
std::vector<Value> Values(const CPieChart& object);
std::vector<Value> Values(const CPolarChart& object);
std::vector<Value> Values(const CFinanceChart& object);
std::vector<Value> Values(const CAngularMeter& object);
std::vector<Value> Values(const CLinearMeter& object);

/// A value that is not the same on both sides; `from` or `to` is empty where there is none.
struct Difference {
    std::string path, from, to;
    friend bool operator==(const Difference&, const Difference&) = default;
};

/// What differs between two objects of one class, in the order of the fields.
std::vector<Difference> Differences(const std::vector<Value>& from, const std::vector<Value>& to);
template <class Object>
std::vector<Difference> Differences(const Object& from, const Object& to) {
    return Differences(Values(from), Values(to));
}

} // namespace model
