// The addresses that the address box offers.
#pragma once

#include <QString>
#include <QStringList>

namespace quorvin {

/// Visited addresses, newest first, each once.
class AddressList {
 public:
  /// Puts `address` first; where it stood before it is taken out.
  void visit(const QString& address);
  void clear() { addresses_.clear(); }

  const QStringList& addresses() const { return addresses_; }

 private:
  QStringList addresses_;
};

}  // namespace quorvin
