// The application object and its message boxes.
#pragma once

#include "platform/close_signals.h"
#include "platform/message_box.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>

#include <functional>
#include <optional>

namespace quorvin {

/// `palette` with a colour for quiet texts (PlaceholderText) that lies between text and background and can be
/// read on Base and on Window. Desktops give one of too little contrast, or, with dark palettes, none. What
/// is selected has a background on which its text can be read, of the hue that the desktop has chosen. Texts
/// of what cannot be used are fainter than others, but can be seen.
QPalette withReadableTexts(QPalette palette);

/// Draws frames that the toolkit's own style draws in a darker shade of the windows, so that nobody sees
/// them: those of menus with dark palettes, and on black windows, for high contrast, also those of boxes,
/// buttons and lists.
class SeenFrames : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

/// Draws English captions on desktops that are read from right to left: without it the full stops and
/// question marks at their ends would be drawn at their starts ("?Web Update"). The captions themselves stay
/// as they are; texts in other scripts are drawn as ever.
class EnglishCaptions : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  void drawItemText(QPainter* painter, const QRect& place, int flags, const QPalette& palette, bool enabled,
                    const QString& text, QPalette::ColorRole role) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
};

/// Gives the program's windows their icon. Drawing it in every size and handing it to the window system takes
/// time that the main window need not wait for; messages come with it in any case.
void giveWindowsTheirIcon();

/// For main(), first of all: a fault that nobody can catch or show, most of all where there is no memory for
/// that, ends the program with a sentence on standard error; without memory with the exit status 2, else as
/// abort() does. What was not saved is in the recovery copy.
void endWithSentence();

/// The last place where a fault can be reported: one that no handler has dealt with is shown in a message
/// box, and the program stays open with everything it had.
class Application : public QApplication {
  Q_OBJECT

 public:
  /// `argc` and `argv` as QApplication wants them; `messages` must outlive the object.
  Application(int& argc, char** argv, MessageBoxes& messages);

  bool notify(QObject* receiver, QEvent* event) override;

  /// Has `leave` called from the event loop when the system wants the program to end: by the signals of
  /// CloseSignals, or since the desktop session ends. Without one, signals do what they did before. Throws as
  /// CloseSignals does.
  void setLeaveHandler(std::function<void()> leave);

 private:
  MessageBoxes& messages_;
  std::function<void()> leave_;
  std::optional<CloseSignals> signals_;
};

/// Shows each message in a separate box above the window in use, with the application title. A call
/// returns when the user has answered; events run meanwhile.
class WidgetMessageBoxes : public MessageBoxes {
 public:
  /// Nobody is there to answer any more: from now on messages become lines on standard error, questions are
  /// answered with No, and faults in a long piece of work with Abort.
  void fallSilent() { isSilent_ = true; }

  void inform(const QString& text) override;
  /// Closed by Esc, the box says that the user wants no more of its kind.
  bool informOneOfMany(const QString& text) override;
  bool askYesNo(const QString& text) override;
  FaultAnswer askAbortRetryIgnore(const QString& text) override;

 private:
  bool isSilent_ = false;
};

}  // namespace quorvin
