#pragma once
// What the kinds of layers are called.

inline constexpr int kLayerKinds = 9;

/// The name of a kind, by CXYChartLayer::GetType; empty for any other number.
const char* LayerKindText(int type);
