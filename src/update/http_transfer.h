// Getting a document by HTTP, without knowing how.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace quorvin {

/// One transfer at a time: it is begun, polled while window events run, and read in chunks. All calls return
/// at once.
class HttpTransfer {
 public:
  virtual ~HttpTransfer() = default;

  /// Asks for the document at `address`, with GET. A transfer that is still going on is cancelled.
  virtual void execute(const QUrl& address) = 0;

  /// True until the answer's headers have arrived, or the transfer has failed.
  virtual bool stillExecuting() const = 0;

  /// The value of the answer's header `name`, which may be written with a colon at its end; empty when the
  /// answer has no such header. Throws RuntimeFault when the transfer has failed.
  virtual QString header(const QString& name) const = 0;

  /// Whether chunk() would give `size` bytes, or the rest, or would throw.
  virtual bool chunkIsReady(qsizetype size) const = 0;

  /// The next `size` bytes of the document, fewer only at its end and none behind it. To be called when
  /// chunkIsReady(). Throws RuntimeFault when the transfer has failed: 53 for a document that the server does
  /// not have, 62 for one that ended too early, 6 for one of more than 2,147,483,647 bytes, 70 for an answer
  /// that forbids it and for a redirect that may not be followed, 57 for anything else.
  virtual QByteArray chunk(qsizetype size) = 0;

  /// Ends the transfer; nothing more is received. Does nothing when there is none.
  virtual void cancel() = 0;
};

}  // namespace quorvin
