// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/main_application.h"

#include "app/fault_report.h"
#include "app/readable_style.h"
#include "app/version.h"
#include "platform/text_direction.h"
#include "texts/texts.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QIconEngine>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <utility>

namespace quorvin {

namespace {

/// The toolkit presents a window that is neither a main window nor a dialog to screen readers as a mere
/// container, and they would not notice that it has become the active one.
QAccessibleInterface* makeWindowAccessible(const QString& className, QObject* object) {
  const bool isPlainWindow = className == u"quorvin::frmBrowser" || className == u"quorvin::ImgPre";
  auto* window = isPlainWindow ? qobject_cast<QWidget*>(object) : nullptr;
  return window ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

/// Only the icon shows which kind of message it is; a screen reader needs a word for it.
void nameIcon(const QMessageBox& box) {
  auto* icon = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
  if (!icon) return;
  switch (box.icon()) {
    case QMessageBox::Question:
      return icon->setAccessibleName(Texts::tr("Question"));
    case QMessageBox::Warning:
      return icon->setAccessibleName(Texts::tr("Warning"));
    default:
      return icon->setAccessibleName(Texts::tr("Information"));
  }
}

/// For parts of controls as the style has drawn them, each for its size. The usual 10 MB, which what is known
/// of the parts doubles, fill up as windows are resized, with what is hardly seen again.
constexpr int kDrawnPartsKilobytes = 1024;

void writeLine(const QString& text) {
  std::fprintf(stderr, "quorvin: %s\n", text.simplified().toLocal8Bit().constData());
}

/// A box that knows whether Esc has closed it.
class Box : public QMessageBox {
 public:
  Box(Icon icon, const QString& text, StandardButtons buttons)
      : QMessageBox(icon, applicationTitle(),
                    englishWithin(QGuiApplication::layoutDirection(),
                                  QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"))),
                    buttons, QApplication::activeWindow()) {
    giveWindowsTheirIcon();
    // Messages name files, and a file's name may look like markup.
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    nameIcon(*this);
  }

  bool isClosedByEsc() const { return isClosedByEsc_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Cancel)) isClosedByEsc_ = true;
    QMessageBox::keyPressEvent(event);
  }

 private:
  bool isClosedByEsc_ = false;
};

QMessageBox::StandardButton show(QMessageBox::Icon icon, const QString& text,
                                 QMessageBox::StandardButtons buttons) {
  return static_cast<QMessageBox::StandardButton>(Box(icon, text, buttons).exec());
}

/// Nothing in it may need memory.
[[noreturn]] void endNow() {
  try {
    if (const std::exception_ptr fault = std::current_exception()) std::rethrow_exception(fault);
  } catch (const std::bad_alloc&) {
    std::fputs(
        "quorvin: There is not enough memory to go on. What was not saved is offered at the next start.\n",
        stderr);
    std::_Exit(2);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "quorvin: The program cannot go on: %s\n", fault.what());
  } catch (...) {
    std::fputs("quorvin: The program cannot go on.\n", stderr);
  }
  std::abort();
}

/// The program's icon in every size that desktops ask for, each drawn for itself, so that none is blurred,
/// and only when it is asked for: some desktops have an icon of their own for the program.
class ApplicationIcon : public QIconEngine {
 public:
  void paint(QPainter* painter, const QRect& place, QIcon::Mode, QIcon::State) override {
    QSvgRenderer drawing(QStringLiteral(":/quorvin/help/quorvin.svg"));
    painter->setRenderHint(QPainter::Antialiasing);
    drawing.render(painter, place);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
  }
  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
    QList<QSize> sizes;
    for (const int side : {16, 22, 24, 32, 48, 64, 96, 128, 256}) sizes.emplaceBack(side, side);
    return sizes;
  }
  QIconEngine* clone() const override { return new ApplicationIcon; }
};

}  // namespace

void giveWindowsTheirIcon() {
  if (QGuiApplication::windowIcon().isNull()) QGuiApplication::setWindowIcon(QIcon(new ApplicationIcon));
}

void endWithSentence() {
  std::set_terminate(&endNow);
}

Application::Application(int& argc, char** argv, MessageBoxes& messages)
    : QApplication(argc, argv), messages_(messages) {
  QAccessible::installFactory(&makeWindowAccessible);
  QPixmapCache::setCacheLimit(kDrawnPartsKilobytes);
  setStyle(new ReadableStyle);
  // Wayland's desktops take the icon from there.
  setDesktopFileName(QStringLiteral("quorvin"));
  // The session goes on only when everybody has answered, so the handler has to be through by then.
  connect(
      this, &QGuiApplication::commitDataRequest, this,
      [this] {
        if (leave_) leave_();
      },
      Qt::DirectConnection);
}

void Application::setLeaveHandler(std::function<void()> leave) {
  leave_ = std::move(leave);
  signals_.reset();
  if (leave_) signals_.emplace([this] { leave_(); });
}

bool Application::notify(QObject* receiver, QEvent* event) {
  bool result = false;
  reportFaults(messages_, Texts::tr("handling an event of the window system"),
               [&] { result = QApplication::notify(receiver, event); });
  return result;
}

void WidgetMessageBoxes::inform(const QString& text) {
  if (isSilent_) return writeLine(text);
  show(QMessageBox::Information, text, QMessageBox::Ok);
}

bool WidgetMessageBoxes::informOneOfMany(const QString& text) {
  if (isSilent_) {
    writeLine(text);
    return true;
  }
  Box box(QMessageBox::Information, text, QMessageBox::Ok);
  box.exec();
  return !box.isClosedByEsc();
}

bool WidgetMessageBoxes::askYesNo(const QString& text) {
  return !isSilent_ &&
         show(QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

FaultAnswer WidgetMessageBoxes::askAbortRetryIgnore(const QString& text) {
  if (isSilent_) {
    writeLine(text);
    return FaultAnswer::Abort;
  }
  switch (show(QMessageBox::Warning, text, QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore)) {
    case QMessageBox::Abort:
      return FaultAnswer::Abort;
    case QMessageBox::Retry:
      return FaultAnswer::Retry;
    case QMessageBox::Ignore:
      return FaultAnswer::Ignore;
    default:
      return FaultAnswer::Closed;
  }
}

}  // namespace quorvin
