// The pages of the help browser, on the screen.
#pragma once

#include "help/help_files.h"
#include "help/page_text.h"

#include <QHash>
#include <QImage>
#include <QTextBrowser>

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

}  // namespace quorvin
