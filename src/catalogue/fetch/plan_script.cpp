// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/plan_script.h"

#include "catalogue/sum_texts.h"
#include "search/format/listing_line.h"
#include "texts/texts.h"

#include <QSet>

#include <algorithm>

namespace quorvin {

namespace {

/// A text of ours in the language that is spoken, as an argument of printf with the shell's `value` in the
/// place of %1.
std::string message(const QString& text, std::string_view value = {}) {
  const qsizetype place = text.indexOf(QLatin1String("%1"));
  if (place < 0) return shellWord(text.toStdString());
  return shellWord(text.first(place).toStdString()) + std::string(value) +
         shellWord(text.sliced(place + 2).toStdString());
}

/// What the script consists of besides the volumes.
std::string functions() {
  std::string text = R"sh(
failed=0

say() {
  printf '%s\n' "$1" >&2
}

# A file of a volume: below $from, with what $task says.
file() {
  if [ -e "$from/$1" ]; then
    take "$1"
  else
    miss "$1"
  fi
}

# The same for a name of which the listing may hold the beginning only.
begins() {
  if [ -e "$from/$1" ]; then
    take "$1"
    return
  fi
  any=
  for path in "$from/$1"*; do
    [ -e "$path" ] || continue
    any=1
    take "${path#"$from/"}"
  done
  [ -n "$any" ] || miss "$1"
}

take() {
  found=1
  if [ "$task" = list ]; then printf '%s\0' "./$1"; fi
}

miss() {
  if [ "$task" = check ]; then
    say )sh";
  text += message(Texts::tr("Not there: %1"), "\"$1\"");
  text += R"sh(
    failed=1
  fi
}

# locate ANSWER FOLDERS VOLUME: sets $from to where the files are: the listing's folders may be in the answer,
# or the answer may be one of them.
locate() {
  below=$2
  while :; do
    from=$1${below:+/$below}
    found=
    task=seek
    "$3"
    [ -z "$found" ] || return 0
    [ -n "$below" ] || return 1
    case $below in
      */*) below=${below#*/} ;;
      *) below= ;;
    esac
  done
}

# fetch VOLUME FOLDERS DESTINATION TEXT
fetch() {
  while :; do
    say "$4"
    printf '%s ' )sh";
  text += message(Texts::tr("The folder where it is now (nothing: leave it out):"));
  text += R"sh( >&2
    IFS= read -r answer || [ -n "$answer" ] || {
      say )sh";
  text += message(Texts::tr("Nobody answers. Please save this script and start it in a terminal."));
  text += R"sh(
      exit 1
    }
    if [ -z "$answer" ]; then
      failed=1
      return
    fi
    case $answer in
      "~") answer=$HOME ;;
      "~/"*) answer=$HOME/${answer#??} ;;
      /*) ;;
      *) answer=./$answer ;;
    esac
    locate "${answer%/}" "$2" "$1" && break
    say )sh";
  text += message(Texts::tr("None of the files is in %1."), "\"$answer\"");
  text += R"sh(
  done
  task=check
  "$1"
  task=list
  mkdir -p "$to/$3" || exit 1
  "$1" | rsync -ltv --chmod=u+w --from0 --files-from=- "$from/" "$to/$3/" || failed=1
}
)sh";
  return text;
}

/// The parts of a path, without those that no path of a listing has and that would lead elsewhere.
std::string joinedParts(std::string_view path, std::string_view separators) {
  std::string joined;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(separators), path.size());
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    if (part.empty() || part == "." || part == "..") continue;
    if (!joined.empty()) joined += '/';
    joined += part;
  }
  return joined;
}

std::string foldersOf(std::string_view path) {
  return joinedParts(path, "\\/");
}

/// For a comment: nothing in it ends the line.
std::string comment(const QString& text) {
  return "# " + withoutControls(text).toStdString() + '\n';
}

/// Names of folders for volumes, each another one on file systems that know no case, too.
class Destinations {
 public:
  std::string nameFor(const QString& title) {
    QString name;
    for (const QChar sign : title) {
      const bool isInNoName = sign == u'/' || sign == u'\\' || sign.category() == QChar::Other_Control;
      name += isInNoName ? QChar(u'_') : sign;
    }
    name = name.trimmed();
    if (name.isEmpty() || name.startsWith(u'.')) name.prepend(u'_');
    QString unique = name;
    for (int number = 2; taken_.contains(unique.toLower()); ++number) {
      unique = name + u' ' + QString::number(number);
    }
    taken_.insert(unique.toLower());
    return unique.toStdString();
  }

 private:
  QSet<QString> taken_;
};

class Script {
 public:
  Script(const FetchFinder& finder, const QLocale& locale) : finder_(finder), locale_(locale) {}

  std::string head(const QString& to) const {
    std::string text = "#!/bin/sh\n";
    for (const QString& line : planSumLines(finder_.plan(), locale_)) text += comment(line);
    for (const std::uint32_t file : finder_.plan().missing) {
      text += comment(QStringLiteral("  ") + missingFileText(finder_.files()[file], locale_));
    }
    return text + "\nto=" + shellWord(to.toStdString()) + '\n';
  }

  /// A function that names the files of the volume.
  std::string volume(std::size_t number) const {
    const FetchPlan::Volume& volume = finder_.plan().volumes[number];
    std::string text =
        '\n' + comment(volumeTitle(finder_.places(), volume.volume)) + functionName(number) + "() {\n";
    for (const FetchPlan::File& file : volume.files) {
      const bool isWhole = bytesOfCharacters(file.copy.name, kNameColumns - 1) == file.copy.name.size();
      text += isWhole ? "  file " : "  begins ";
      text += shellWord(pathOf(file.copy)) + '\n';
    }
    return text + "}\n";
  }

  /// Asks for the volumes. All in one function: a shell that reads the script from a pipe has read all of it
  /// by then.
  std::string end() const {
    std::string text = "\nmain() {\n  command -v rsync >/dev/null || {\n    say ";
    text += message(Texts::tr("rsync is needed, and is not installed.")) + "\n    exit 2\n  }\n";
    Destinations destinations;
    for (std::size_t number = 0; number < finder_.plan().volumes.size(); ++number) {
      const std::uint32_t volume = finder_.plan().volumes[number].volume;
      text += "  fetch " + functionName(number) + ' ' + shellWord(foldersOf(finder_.places().tops[volume])) +
              ' ' + shellWord(destinations.nameFor(volumeTitle(finder_.places(), volume))) + " \\\n    " +
              shellWord(request(number).toStdString()) + '\n';
    }
    text += "  [ \"$failed\" = 0 ] || {\n    say " + message(Texts::tr("Not everything was copied."));
    return text + "\n    exit 1\n  }\n}\n\nmain\nexit\n";
  }

 private:
  static std::string functionName(std::size_t number) { return "volume_" + std::to_string(number + 1); }

  /// Below the folder that all files of the volume have in common.
  std::string pathOf(const FileCopy& copy) const {
    const std::string folder = finder_.places().folders.path(copy.folder);
    const std::string& top = finder_.places().tops[copy.volume];
    const std::string below = foldersOf(std::string_view(folder).substr(std::min(top.size(), folder.size())));
    const std::string name = joinedParts(copy.name, "/");
    return below.empty() ? name : below + '/' + name;
  }

  QString request(std::size_t number) const {
    const FetchPlan& plan = finder_.plan();
    const PlanPlaces& places = finder_.places();
    const FetchPlan::Volume& volume = plan.volumes[number];
    return Texts::tr("Please insert volume %1 of %2: %3. It was listed at %4; %5 to copy.")
        .arg(locale_.toString(static_cast<qulonglong>(number + 1)),
             locale_.toString(static_cast<qulonglong>(plan.volumes.size())),
             withoutControls(volumeTitle(places, volume.volume)),
             withoutControls(QString::fromStdString(places.tops[volume.volume])),
             sumText(volume.sum, locale_));
  }

  const FetchFinder& finder_;
  const QLocale& locale_;
};

}  // namespace

std::string shellWord(std::string_view text) {
  std::string word = "'";
  for (const char byte : text) {
    if (byte == '\'') {
      word += "'\\''";
    } else if (byte != '\0') {
      word += byte;
    }
  }
  return word + '\'';
}

void writePlanScript(const FetchFinder& finder, const QString& to, const QLocale& locale,
                     const std::function<bool(const std::string& piece)>& write) {
  const Script script(finder, locale);
  if (!write(script.head(to) + functions())) return;
  for (std::size_t number = 0; number < finder.plan().volumes.size(); ++number) {
    if (!write(script.volume(number))) return;
  }
  write(script.end());
}

}  // namespace quorvin
