#pragma once

class QPainter;
class QRect;
class QStyleOption;

namespace hullwright {

// Marks in the colours of an option's palette, each with the contrast of a shape to what it stands
// on. Disabled ones are paler.

/// A button of a toolbar that is down or switched on.
void DrawDownButton(QPainter& painter, const QStyleOption& option);

void DrawRadioButton(QPainter& painter, const QStyleOption& option);
void DrawCheckBox(QPainter& painter, const QStyleOption& option);

/// The edge around an edit field, in the colour of what is chosen while the field has the keyboard.
void DrawFieldEdge(QPainter& painter, const QStyleOption& option);

/// The slider of a scroll bar, in the place that the bar gives it.
void DrawSlider(QPainter& painter, const QStyleOption& option, const QRect& place);

/// The lines of a tree that lead to a row, and the box that opens and closes it.
void DrawBranch(QPainter& painter, const QStyleOption& option);

}  // namespace hullwright
