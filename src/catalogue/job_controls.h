// Controls of the windows that do something long in another thread.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QString>

#include <chrono>

namespace quorvin {

/// How often a window looks at what its thread does: often enough for the eye.
inline constexpr std::chrono::milliseconds kBetweenLooks{50};

/// What the button that starts something is called while that goes on.
QString stopCaption();

/// The button that starts something, as wide as stopCaption() needs too, so that nothing moves when it
/// changes.
QPushButton* makeStartButton(const QString& caption);

/// A caption whose letter leads to the control.
QLabel* captionOf(QWidget* control, const QString& text);

}  // namespace quorvin
