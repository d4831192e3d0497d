// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/page_loader.h"

#include "texts/texts.h"

#include <utility>

namespace quorvin {

namespace {

Page fetchedPage(const QUrl& asked, const TransferResult& result) {
  if (result.failure.isEmpty()) {
    QUrl address = result.address;
    if (!address.hasFragment()) address.setFragment(asked.hasFragment() ? asked.fragment() : QString());
    return decodedPage(address, result.body, result.contentType);
  }
  return messagePage(
      asked, Texts::tr("The page could not be fetched"),
      result.failure + u' ' +
          Texts::tr("Check the address and your connection, then choose Refresh (F5) to try again."));
}

}  // namespace

PageLoader::PageLoader(const QString& helpFolder, PageTransfer& transfer, PageDisplay display)
    : files_(helpFolder), transfer_(transfer), display_(std::move(display)) {}

void PageLoader::open(const QString& address) {
  const QUrl target = pageAddress(address, files_.folder());
  if (!target.isEmpty()) load(target, Move::New, 0);
}

void PageLoader::follow(const QUrl& link) {
  const QUrl base = history_.isEmpty() ? QUrl::fromLocalFile(files_.folder()) : history_.current().address;
  const QUrl target = base.resolved(link);
  if (history_.isEmpty() || !link.hasFragment() || !isSamePage(base, target)) {
    load(target, Move::New, 0);
    return;
  }
  stop();
  history_.keepPosition(display_.position());
  history_.visit(target);
  display_.showPlace(target.fragment());
  display_.navigationFinished(addressText(target));
}

void PageLoader::goBack() {
  if (canGoBack()) load(history_.behind().address, Move::Back, history_.behind().position);
}

void PageLoader::goForward() {
  if (canGoForward()) load(history_.ahead().address, Move::Forward, history_.ahead().position);
}

void PageLoader::reload() {
  if (!history_.isEmpty()) load(history_.current().address, Move::Stay, display_.position());
}

void PageLoader::stop() {
  transfer_.stop();
  busy_ = false;
}

void PageLoader::reset() {
  stop();
  history_.clear();
}

QString PageLoader::loadingAddress() const {
  return addressText(loading_);
}

void PageLoader::load(const QUrl& address, Move move, int position) {
  stop();
  if (isWebAddress(address)) {
    fetch(address, move, position);
  } else {
    show(helpPage(address), move, position);
  }
}

void PageLoader::fetch(const QUrl& address, Move move, int position) {
  busy_ = true;
  loading_ = address;
  transfer_.start(address, [this, address, move, position](const TransferResult& result) {
    busy_ = false;
    show(fetchedPage(address, result), move, position);
  });
}

Page PageLoader::helpPage(const QUrl& address) const {
  const HelpFile file = files_.read(address, HelpFileKind::Page);
  switch (file.state) {
    case HelpFileState::Read:
      return decodedPage(address, file.bytes, "text/html; charset=utf-8");
    case HelpFileState::Missing:
      return messagePage(address, Texts::tr("This help page is missing"),
                         Texts::tr("The help pages come with the program and are kept in its folder. If they "
                                   "have been moved or removed, install the program again."));
    case HelpFileState::Refused:
      break;
  }
  return messagePage(address, Texts::tr("This address cannot be opened here"),
                     Texts::tr("This window shows the program's help pages and plain web pages "
                               "(http and https). It opens no other files."));
}

void PageLoader::show(const Page& page, Move move, int position) {
  history_.keepPosition(display_.position());
  moveInHistory(page.address, move);
  display_.showPage(page, position);
  display_.navigationFinished(addressText(page.address));
}

void PageLoader::moveInHistory(const QUrl& address, Move move) {
  switch (move) {
    case Move::New:
      history_.visit(address);
      break;
    case Move::Back:
      history_.moveBack(address);
      break;
    case Move::Forward:
      history_.moveForward(address);
      break;
    case Move::Stay:
      history_.stay(address);
      break;
  }
}

}  // namespace quorvin
