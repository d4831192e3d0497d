// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/help_files.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "files/path_style.h"
#include "texts/texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <initializer_list>

namespace quorvin {

namespace {

constexpr char16_t kGeneralHelpPage[] = u"genhelp.htm";
constexpr char16_t kSharedFolder[] = u"/../share/quorvin/help";

bool endsInOneOf(const QString& path, std::initializer_list<QStringView> endings) {
  return std::any_of(endings.begin(), endings.end(),
                     [&](QStringView ending) { return path.endsWith(ending, Qt::CaseInsensitive); });
}

bool isNamedLike(HelpFileKind kind, const QString& path) {
  if (kind == HelpFileKind::Page) return endsInOneOf(path, {u".htm", u".html"});
  return endsInOneOf(path, {u".png", u".jpg", u".gif"});
}

QString asFolder(const QString& path) {
  return withTrailingSeparator(QDir::toNativeSeparators(QDir::cleanPath(path)), nativePathStyle());
}

QByteArray wholeFile(SequentialFile& file) {
  QByteArray bytes(static_cast<qsizetype>(file.sizeWhenOpened()), '\0');
  const std::size_t count = file.read({bytes.data(), static_cast<std::size_t>(bytes.size())});
  bytes.truncate(static_cast<qsizetype>(count));
  return bytes;
}

HelpFile readRegularFile(const QString& path) {
  try {
    SequentialFile file(path);
    if (file.sizeWhenOpened() > HelpFiles::kLargestFile) return {HelpFileState::Refused, {}};
    return {HelpFileState::Read, wholeFile(file)};
  } catch (const RuntimeFault&) {
    return {HelpFileState::Missing, {}};
  }
}

}  // namespace

HelpFiles::HelpFiles(const QString& folder) : folder_(asFolder(folder)) {}

bool HelpFiles::isInside(const QString& path) const {
  const QString canonicalFolder = QFileInfo(folder_).canonicalFilePath();
  return !canonicalFolder.isEmpty() && path.startsWith(withTrailingSeparator(canonicalFolder, kUnixPaths));
}

QString HelpFiles::addressOf(const QString& page) const {
  const QString translated = folder_ + Texts::language() + QDir::separator() + page;
  return QFileInfo(translated.section(u'#', 0, 0)).isFile() ? translated : folder_ + page;
}

HelpFile HelpFiles::read(const QUrl& url, HelpFileKind kind) const {
  const bool isLocal = url.isLocalFile() && url.host().isEmpty();
  const QString path = isLocal ? QDir::cleanPath(url.toLocalFile()) : QString();
  if (!isNamedLike(kind, path) || path.contains(QChar(u'\0'))) return {};

  const QFileInfo info(path);
  const QString canonical = info.canonicalFilePath();
  if (canonical.isEmpty()) {
    const bool wouldBeInside = QDir::toNativeSeparators(path).startsWith(folder_);
    return {wouldBeInside ? HelpFileState::Missing : HelpFileState::Refused, {}};
  }
  if (!isInside(canonical) || !isNamedLike(kind, canonical) || !info.isFile()) return {};
  return readRegularFile(canonical);
}

QString chooseHelpFolder(const QString& executableFolder) {
  for (const QString& folder : {executableFolder, executableFolder + QString::fromUtf16(kSharedFolder)}) {
    if (QFileInfo(folder + u'/' + QString::fromUtf16(kGeneralHelpPage)).isFile()) return asFolder(folder);
  }
  return asFolder(executableFolder);
}

QString helpFolder() {
  return chooseHelpFolder(QCoreApplication::applicationDirPath());
}

QString helpPageAddress(const QString& pageName) {
  return HelpFiles(helpFolder()).addressOf(pageName);
}

}  // namespace quorvin
