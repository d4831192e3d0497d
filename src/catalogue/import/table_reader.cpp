// SPDX-License-Identifier: GPL-2.0-or-later

// Tables of values with commas, semicolons or tabs between, whose first row names the columns.
#include "catalogue/import/list_dates.h"
#include "catalogue/import/list_readers.h"
#include "catalogue/import/list_text.h"
#include "dates/general_number.h"
#include "faults/runtime_fault.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);
/// A value that has more than this without an end of its quotes has none.
constexpr std::size_t kLongestRow = 1'000'000;

enum Column : std::size_t { kPath, kFolder, kName, kSize, kDate, kType, kColumns };

constexpr std::array<std::string_view, kColumns> kColumnNames{"path", "folder", "name",
                                                              "size", "date",   "type"};

/// Titles in lower case, with blanks, "_" and "-" left out, that say what is in a column.
constexpr std::array<std::array<std::string_view, 14>, kColumns> kTitles{
    {{"path", "fullpath", "fullname", "filepath", "pathname", "pfad", "chemin", "ruta", "percorso", "caminho",
      "pad", "location", "url", "dateipfad"},
     {"folder", "directory", "dir", "foldername", "directoryname", "parent", "ordner", "verzeichnis",
      "dossier", "carpeta", "cartella", "pasta", "map", "katalog"},
     {"name", "filename", "file", "basename", "title", "dateiname", "datei", "nom", "nombre", "nome", "naam",
      "nazwa", "fichier", "archivo"},
     {"size", "sizebytes", "bytes", "length", "filesize", "sizeinbytes", "size(bytes)", "taille", "grosse",
      "gr\u00F6\u00DFe", "tama\u00F1o", "dimensione", "tamanho", "rozmiar"},
     {"modified", "date", "datemodified", "mtime", "lastmodified", "modtime", "lastwritetime",
      "modificationdate", "modificationtime", "datum", "ge\u00E4ndert", "fecha", "data", "datetime"},
     {"type", "kind", "isdir", "isfolder", "isdirectory", "typ", "tipo", "filetype", "entrytype",
      "objecttype", "itemtype", "mode", "soort", "art"}}};

std::string plainTitle(const std::string& title) {
  QString text = simpleLowerCase(textOfUtf8(title));
  text.remove(u' ').remove(u'_').remove(u'-');
  return text.toStdString();
}

class TableReader : public ListReader {
 public:
  explicit TableReader(const ListReadOptions& options) {
    columns_.fill(kNone);
    if (options.columns.empty()) return;
    isChosen_ = true;
    for (const QString& choice : QString::fromStdString(options.columns).split(u',')) {
      const QString name = choice.section(u'=', 0, 0).trimmed();
      const QString title = choice.section(u'=', 1).trimmed();
      const auto found = std::ranges::find(kColumnNames, name.toStdString());
      if (found == kColumnNames.end() || title.isEmpty()) {
        throw RuntimeFault(
            FaultNumber::InvalidProcedureCall,
            Texts::tr("\"%1\" says nothing of a column; an example is path=1,size=3,date=Modified")
                .arg(choice));
      }
      chosen_[static_cast<std::size_t>(found - kColumnNames.begin())] = title.toStdString();
    }
  }

  LineSays read(std::string_view line, ListEntry& entry) override {
    if (row_.empty() && !isOpen_) {
      if (line.empty()) return LineSays::NoEntry;
    } else {
      row_ += '\n';
    }
    if (row_.size() + line.size() > kLongestRow) {
      row_.clear();
      isOpen_ = false;
      return LineSays::NotUnderstood;
    }
    row_ += line;
    isOpen_ = std::ranges::count(row_, '"') % 2 != 0;
    if (isOpen_) return LineSays::NoEntry;
    const std::string row = std::exchange(row_, {});
    if (!hasTitles_) return readTitles(row);
    const std::vector<std::string> cells = cellsOf(row);
    if (cells.size() < titles_.size() - (titles_.back().empty() ? 1 : 0)) return LineSays::NotUnderstood;
    return readCells(cells, entry);
  }

  std::string decided() const override {
    std::string text;
    for (std::size_t column = 0; column < kColumns; ++column) {
      if (columns_[column] == kNone) continue;
      if (!text.empty()) text += ", ";
      text += std::string(kColumnNames[column]) + "=" + std::to_string(columns_[column] + 1);
      if (const std::string& title = titles_[columns_[column]]; !title.empty()) text += " \"" + title + '"';
    }
    return text;
  }

 private:
  LineSays readTitles(std::string row) {
    hasTitles_ = true;
    if (row.starts_with("\xEF\xBB\xBF")) row.erase(0, 3);
    std::size_t most = 0;
    for (const char sign : {',', ';', '\t'}) {
      const auto count = static_cast<std::size_t>(std::ranges::count(row, sign));
      if (count > most) sign_ = sign;
      most = std::max(most, count);
    }
    titles_ = cellsOf(row);
    for (std::size_t column = 0; column < kColumns; ++column) columns_[column] = columnOf(column);
    isUsable_ = columns_[kPath] != kNone || columns_[kName] != kNone;
    // A table whose columns were numbered may have its first entry in the first row.
    return isUsable_ && (most > 0 || isChosen_) ? LineSays::NoEntry : LineSays::NotUnderstood;
  }

  std::size_t columnOf(std::size_t column) const {
    if (isChosen_) {
      const std::string& chosen = chosen_[column];
      if (chosen.empty()) return kNone;
      if (isAllDigits(chosen)) {
        std::string_view digits = chosen;
        const auto number = takeNumber(digits);
        const bool isThere = number && *number >= 1 && *number <= static_cast<std::int64_t>(titles_.size());
        return isThere ? static_cast<std::size_t>(*number) - 1 : kNone;
      }
      const auto found = std::ranges::find(titles_, chosen);
      return found == titles_.end() ? kNone : static_cast<std::size_t>(found - titles_.begin());
    }
    for (const std::string_view known : kTitles[column]) {
      const auto found = std::ranges::find(titles_, known, plainTitle);
      if (found != titles_.end()) return static_cast<std::size_t>(found - titles_.begin());
    }
    return kNone;
  }

  std::vector<std::string> cellsOf(std::string_view row) const {
    std::vector<std::string> cells(1);
    bool isQuoted = false;
    for (std::size_t at = 0; at < row.size(); ++at) {
      if (row[at] == '"' && isQuoted && row.substr(at + 1).starts_with('"')) {
        cells.back() += row[++at];
      } else if (row[at] == '"' && (isQuoted || cells.back().empty())) {
        isQuoted = !isQuoted;
      } else if (row[at] == sign_ && !isQuoted) {
        cells.emplace_back();
      } else {
        cells.back() += row[at];
      }
    }
    return cells;
  }

  const std::string* cell(const std::vector<std::string>& cells, Column column) const {
    const std::size_t number = columns_[column];
    return number < cells.size() ? &cells[number] : nullptr;
  }

  LineSays readCells(const std::vector<std::string>& cells, ListEntry& entry) const {
    if (!isUsable_) return LineSays::NotUnderstood;
    const std::string* path = cell(cells, kPath);
    const std::string* folder = cell(cells, kFolder);
    const std::string* name = cell(cells, kName);
    entry = {};
    if (path) entry.path = *path;
    if (!path && folder) entry.path = *folder;
    const bool isApart = name && !name->empty() && (!path || isFolderOf(*path, *name));
    if (isApart && !entry.path.empty() && !entry.path.ends_with('/') && !entry.path.ends_with('\\')) {
      entry.path += '/';
    }
    if (isApart) entry.path += *name;
    if (entry.path.empty()) return LineSays::NotUnderstood;
    if (isWindowsPath(entry.path)) slash(entry.path);
    entry.kind = kindOf(cells, entry.path);
    if (entry.kind == EntryKind::Folder) return LineSays::Entry;
    if (const std::string* size = cell(cells, kSize)) entry.size = sizeIn(*size);
    if (const std::string* date = cell(cells, kDate)) entry.modified = dateIn(*date);
    return LineSays::Entry;
  }

  /// Where a table has paths and names, the path may be the folder's or the whole one.
  static bool isFolderOf(const std::string& path, const std::string& name) {
    if (!path.ends_with(name)) return true;
    const std::size_t before = path.size() - name.size();
    return before > 0 && path[before - 1] != '/' && path[before - 1] != '\\';
  }

  static bool isWindowsPath(const std::string& path) {
    const bool hasDrive = path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/');
    return hasDrive || path.starts_with("\\\\") || path.find('/') == std::string::npos;
  }

  static void slash(std::string& path) {
    if (path.size() > 1 && path[1] == ':') path.erase(0, 2);
    std::ranges::replace(path, '\\', '/');
  }

  EntryKind kindOf(const std::vector<std::string>& cells, const std::string& path) const {
    if (path.ends_with('/')) return EntryKind::Folder;
    const std::string* type = cell(cells, kType);
    if (!type) return EntryKind::Unknown;
    static constexpr std::array<std::string_view, 10> kFolders{
        "d", "dir", "folder", "directory", "true", "1", "ordner", "dossier", "carpeta", "cartella"};
    const std::string plain = plainTitle(*type);
    const bool isFolder = std::ranges::find(kFolders, plain) != kFolders.end() || plain.starts_with("drwx");
    return isFolder ? EntryKind::Folder : EntryKind::File;
  }

  static std::optional<std::int64_t> sizeIn(const std::string& text) {
    const auto size = readByteCount(textOfUtf8(text));
    return size && *size >= 0 ? size : std::nullopt;
  }

  static ListDate dateIn(const std::string& text) {
    std::string_view rest = text;
    takeBlanks(rest);
    auto date = takeIsoDate(rest);
    if (!date) date = takeNumericDate(rest);
    if (!date && rest.size() >= 9) date = takeUnixTime(rest);
    takeBlanks(rest);
    return date && rest.empty() ? *date : ListDate{};
  }

  std::array<std::string, kColumns> chosen_;
  bool isChosen_ = false;
  std::array<std::size_t, kColumns> columns_{};
  bool isUsable_ = false;
  std::vector<std::string> titles_;
  bool hasTitles_ = false;
  char sign_ = ',';
  /// A row that goes on in the next line, since quotes are open in it.
  std::string row_;
  bool isOpen_ = false;
};

}  // namespace

std::unique_ptr<ListReader> makeTableReader(const ListReadOptions& options) {
  return std::make_unique<TableReader>(options);
}

}  // namespace quorvin
