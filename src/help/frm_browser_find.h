// Finding words on the page that the help browser shows.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;
class QToolButton;

namespace quorvin {

/// A row with a text to find and buttons for the next and the one before. It looks while the reader types and
/// goes on from the other end of the page when there is no further place.
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
