// SPDX-License-Identifier: GPL-2.0-or-later

// The two ways in which desktops ask for files, by the bus: that of GNOME Shell and that of KRunner.
#pragma once

#include "provider/file_finder.h"

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace quorvin {

/// What both ways share. A search ends in time for an answer within 50 milliseconds, with what was found by
/// then.
class DesktopSearch : public QObject {
  Q_OBJECT

 public:
  /// Starts a program, without waiting for it; `token` is the desktop's permission to come to the front, and
  /// may be empty.
  using Start =
      std::function<void(const QString& program, const QStringList& arguments, const QString& token)>;

  /// The rest of the 50 milliseconds is for the way there and back.
  static constexpr int kSearchMilliseconds = 40;

  /// `window` is the program that shows all hits of a search.
  DesktopSearch(const QString& window, Start start, int searchMilliseconds = kSearchMilliseconds);

  std::vector<FoundFile> find(const QString& text);
  /// Opens the file, or, where that is not on this machine now, the window with a search for `text`.
  void open(const QString& id, const QString& text, const QString& token);
  void openWindow(const QString& text, const QString& token);

 Q_SIGNALS:
  /// Somebody has asked for something.
  void asked();

 private:
  FileFinder finder_;
  QString window_;
  Start start_;
  int searchMilliseconds_;
};

/// The interface org.gnome.Shell.SearchProvider2, as GNOME Shell documents it.
class ShellSearch : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.gnome.Shell.SearchProvider2")

 public:
  /// `parent` is the object on the bus; `search` must outlive it.
  ShellSearch(QObject* parent, DesktopSearch& search);

 public Q_SLOTS:
  QStringList GetInitialResultSet(const QStringList& terms);
  QStringList GetSubsearchResultSet(const QStringList& previous, const QStringList& terms);
  QList<QVariantMap> GetResultMetas(const QStringList& identifiers);
  void ActivateResult(const QString& identifier, const QStringList& terms, uint timestamp);
  void LaunchSearch(const QStringList& terms, uint timestamp);

 private:
  DesktopSearch& search_;
};

/// A match as KRunner wants it: (sssuda{sv}).
struct RunnerMatch {
  QString id;
  QString text;
  QString icon;
  uint type;
  double relevance;
  QVariantMap properties;
};
QDBusArgument& operator<<(QDBusArgument& argument, const RunnerMatch& match);
const QDBusArgument& operator>>(const QDBusArgument& argument, RunnerMatch& match);

/// What can be done with a match besides opening it: (sss).
struct RunnerAction {
  QString id;
  QString text;
  QString icon;
};
QDBusArgument& operator<<(QDBusArgument& argument, const RunnerAction& action);
const QDBusArgument& operator>>(const QDBusArgument& argument, RunnerAction& action);

/// The interface org.kde.krunner1.
class RunnerSearch : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.krunner1")

 public:
  /// `parent` is the object on the bus; `search` must outlive it.
  RunnerSearch(QObject* parent, DesktopSearch& search);

 public Q_SLOTS:
  QList<quorvin::RunnerMatch> Match(const QString& query);
  QList<quorvin::RunnerAction> Actions() { return {}; }
  void Run(const QString& matchId, const QString& actionId);
  void SetActivationToken(const QString& token) { token_ = token; }

 private:
  DesktopSearch& search_;
  QString query_;
  QString token_;
};

}  // namespace quorvin

Q_DECLARE_METATYPE(quorvin::RunnerMatch)
Q_DECLARE_METATYPE(quorvin::RunnerAction)
