// SPDX-License-Identifier: GPL-2.0-or-later

// The page that the help browser shows, and finding words on it.
#pragma once

#include "help/help_files.h"
#include "help/page.h"

#include <QHash>
#include <QImage>
#include <QTextBrowser>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;
class QToolButton;

namespace quorvin {

/// `brwWebBrowser`: shows one page and says what the reader wants; it goes nowhere by itself. Nothing that a
/// page names is opened but pictures of the help itself, and those only from a page of the help. Pictures
/// wider than the window are made to fit.
class HelpView : public QTextBrowser {
  Q_OBJECT

 public:
  /// `files` must outlive the view.
  explicit HelpView(const HelpFiles& files, QWidget* parent = nullptr);

  /// Shows `page` from its top on.
  void showPage(const Page& page);
  /// Goes to the place that `fragment` names, or to the top.
  void showPlace(const QString& fragment);
  void showNothing();

  /// How far down the page is being read; goTo takes it back.
  int position() const;
  void goTo(int position);

  // What the base class would do by itself becomes a wish.
  void backward() override;
  void forward() override;
  void home() override;
  void reload() override;

  /// Never gives an empty value: for one the base classes would open what the page names themselves.
  QVariant loadResource(int type, const QUrl& name) override;

 Q_SIGNALS:
  void backWished();
  void forwardWished();
  void homeWished();
  void reloadWished();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void styleDocument();
  void setPageText();
  QImage picture(const QUrl& name);
  QImage fitted(const QImage& picture) const;
  int roomForPictures() const;

  const HelpFiles& files_;
  Page page_;
  /// The pictures of the page as they are on disk, by the name that the page has for them.
  QHash<QUrl, QImage> pictures_;
  int fittedTo_ = 0;
};

/// A row with a text to find and buttons for the next and the one before. It looks while the reader types and
/// continues from the other end of the page when there is no further match.
class FindBar : public QWidget {
  Q_OBJECT

 public:
  /// `page` must outlive the bar.
  explicit FindBar(QTextBrowser& page, QWidget* parent = nullptr);

  /// Shows the bar, ready to type.
  void open();
  /// Hides it and gives the page the focus.
  void dismiss();

  void findNext();
  void findPrevious();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolButton* addButton(const QString& caption, const QString& toolTip);
  void findFromHere();
  void find(bool backwards);

  QTextBrowser& page_;
  QLineEdit* text_;
  QLabel* outcome_;
};

}  // namespace quorvin
