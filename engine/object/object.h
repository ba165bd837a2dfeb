#pragma once
// What every handle of the flat surface points at: an object with a kind. The surface hands out opaque
// pointers; the one checked cast below turns them back, and turns null or a handle of a wrong kind into null.

#include <cstdint>

namespace chartdraw {

enum class Kind : std::uint8_t {
    None,
    BaseChart,
    XYChart,
    PieChart,
    PolarChart,
    MultiChart,
    BaseMeter,
    AngularMeter,
    LinearMeter,
    Axis,
    AngularAxis,
    PlotArea,
    Layer,
    BarLayer,
    LineLayer,
    SplineLayer,
    StepLineLayer,
    AreaLayer,
    InterLineLayer,
    BaseBoxLayer,
    BoxWhiskerLayer,
    HLOCLayer,
    CandleStickLayer,
    PolarLayer,
    PolarLineLayer,
    PolarSplineLineLayer,
    PolarAreaLayer,
    PolarSplineAreaLayer,
    DataSet,
    Sector,
    DrawObj,
    Box,
    TextBox,
    LegendBox,
    Mark,
    Line,
    MeterPointer,
    DrawArea,
    RanTable,
    ArrayMath,
};

/// The kind that `kind` derives from, `Kind::None` for a root.
Kind baseOf(Kind kind);

/// Whether an object of `kind` may stand where `wanted` is asked for.
bool isKind(Kind kind, Kind wanted);

class Object {
public:
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;

    Kind kind() const { return m_kind; }

    /// Told before every change by a handle (engine/api/call.h): what was drawn of the object is no longer
    /// true.
    virtual void changed() {}

protected:
    explicit Object(Kind kind) : m_kind(kind) {}

private:
    Kind m_kind;
};

/// The engine object behind a handle: null for a null handle or one of another kind. A class that stands
/// behind a handle names its kind as `static constexpr Kind kKind` and derives singly from Object.
template <class T, class Handle>
T* object(Handle* handle) {
    auto* base = reinterpret_cast<Object*>(handle);
    return base != nullptr && isKind(base->kind(), T::kKind) ? static_cast<T*>(base) : nullptr;
}

/// The handle of an object; null stays null.
template <class Handle>
Handle* handle(Object* base) {
    return reinterpret_cast<Handle*>(base);
}

} // namespace chartdraw
