#pragma once
// The small rules that all editors share: the orders of the alignment and side lists, texts of
// several lines, and the colour of a new item.

#include "editors/framework/choices.h"

#include <charteditors/chart_color.h>

#include <QString>
#include <cstdint>

/// Rows of the alignment list and the codes that are stored. An unknown code shows as row 0, an unknown row
/// stores 7.
int AlignmentToIndex(int code);
int IndexToAlignment(int row);
/// Rows "Left", "Right", "Top", "Bottom" and the codes 4, 6, 8, 2. Anything else is Left.
int SideToIndex(int code);
int IndexToSide(int row);
const CChoices& Alignments();
const CChoices& Sides();

/// The model and the edits separate lines by LF; a host may have written CR LF.
QString FromEditText(const QString& text);
/// What stands for a text in a list: its first line, with three dots where more follow.
QString FirstLineOf(const QString& text);

/// A General colour with random components, opaque. The sequence is the standard library's, never seeded
/// here.
CChartColor RandomChartColor();
