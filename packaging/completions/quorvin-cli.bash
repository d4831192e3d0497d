# Made by: quorvin-cli --completion bash
_quorvin_own_folders() {
  quorvin-cli sources --quiet 2>/dev/null | awk -F '\t' '$1 == "folder" {print $2}'
}
_quorvin_words() {
  mapfile -t COMPREPLY < <(compgen -W "$1" -- "$cur")
}
_quorvin_list() {
  local before=""
  [[ $cur == *,* ]] && before="${cur%,*},"
  compopt -o nospace
  mapfile -t COMPREPLY < <(compgen -P "$before" -W "$1" -- "${cur##*,}")
}
_quorvin_lines() {
  local line
  while IFS= read -r line; do
    [[ -n $line && $line == "$cur"* ]] && COMPREPLY+=("$(printf '%q' "$line")")
  done <<< "$1"
}
_quorvin_files() {
  compopt -o filenames
  mapfile -t COMPREPLY < <(compgen "$1" -- "$cur")
}
_quorvin_cli() {
  local cur="${COMP_WORDS[COMP_CWORD]}" prev="${COMP_WORDS[COMP_CWORD - 1]}" command="" word
  COMPREPLY=()
  for word in "${COMP_WORDS[@]:1:COMP_CWORD - 1}"; do
    case "$command $word" in
      " find") command="find" ;;
      " copies") command="copies" ;;
      " compare") command="compare" ;;
      " plan") command="plan" ;;
      " volumes") command="volumes" ;;
      " index") command="index" ;;
      " verify") command="verify" ;;
      " import") command="import" ;;
      " refresh") command="refresh" ;;
      " sources") command="sources" ;;
      "sources add") command="sources add" ;;
      "sources remove") command="sources remove" ;;
      "sources move") command="sources move" ;;
      " history") command="history" ;;
      " cache") command="cache" ;;
    esac
  done
  case "$command" in
    "")
      case "$prev" in
        --completion) _quorvin_words "bash zsh fish"; return ;;
      esac
      _quorvin_words "find copies compare plan volumes index verify import refresh sources history cache --version --completion --man --help"
      ;;
    "find")
      case "$prev" in
        --match) _quorvin_words ""; return ;;
        --format) _quorvin_words "tsv csv json"; return ;;
        --fields) _quorvin_list "match volume folder name path size modified listing words"; return ;;
        --limit) _quorvin_words ""; return ;;
        --sort) _quorvin_words "match volume folder name size modified"; return ;;
        --color) _quorvin_words "auto always never"; return ;;
      esac
      if [[ $cur == -* ]]; then
        _quorvin_words "--match --format --fields --header --no-header -0 --null --limit --sort --reverse --color --count -q --quiet --no-cache --help"
        return
      fi
      _quorvin_files -f
      ;;
    "copies")
      case "$prev" in
        --match) _quorvin_words ""; return ;;
        --format) _quorvin_words "text tsv csv json"; return ;;
        --limit) _quorvin_words ""; return ;;
      esac
      if [[ $cur == -* ]]; then
        _quorvin_words "--single --by-volume --by-folder --match --empty --content --format --header -0 --null --limit -q --quiet --no-cache --help"
        return
      fi
      _quorvin_files -f
      ;;
    "compare")
      case "$prev" in
        --number) _quorvin_words ""; return ;;
        --on) _quorvin_words ""; return ;;
        --format) _quorvin_words "text tsv csv json"; return ;;
        --limit) _quorvin_words ""; return ;;
      esac
      if [[ $cur == -* ]]; then
        _quorvin_words "--number --on --by-folder --format --header -0 --null --limit -q --quiet --help"
        return
      fi
      _quorvin_files -f
      ;;
    "plan")
      case "$prev" in
        --match) _quorvin_words ""; return ;;
        --format) _quorvin_words "text json"; return ;;
        --to) _quorvin_files -d; return ;;
      esac
      if [[ $cur == -* ]]; then
        _quorvin_words "--match --format --script --to -q --quiet --no-cache --help"
        return
      fi
      _quorvin_files -f
      ;;
    "volumes")
      case "$prev" in
        --match) _quorvin_words ""; return ;;
        --sort) _quorvin_words "volume files size newest listed free note"; return ;;
        --note) _quorvin_words ""; return ;;
      esac
      if [[ $cur == -* ]]; then
        _quorvin_words "--match --sort --reverse --json --note -q --quiet --no-cache --help"
        return
      fi
      _quorvin_files -f
      ;;
    "index")
      case "$prev" in
        --label) _quorvin_words ""; return ;;
        --output) _quorvin_files -f; return ;;
      esac
      if [[ $cur == -* ]]; then
        _quorvin_words "--label --folders-only --output --checksums -q --quiet --help"
        return
      fi
      _quorvin_files -d
      ;;
    "verify")
      if [[ $cur == -* ]]; then
        _quorvin_words "--restart --json -q --quiet --help"
        return
      fi
      _quorvin_files -f
      ;;
    "import")
      case "$prev" in
        --output) _quorvin_words ""; return ;;
        --format) _quorvin_words "ls ls-quoted ls-escaped find-ls find-printf du tree dir unzip tar rsync rclone paths csv checksums bagit"; return ;;
        --label) _quorvin_words ""; return ;;
        --folder) _quorvin_words ""; return ;;
        --pattern) _quorvin_words ""; return ;;
        --columns) _quorvin_list "path= folder= name= size= date= type="; return ;;
        --dates) _quorvin_words "dmy mdy"; return ;;
        --made) _quorvin_words ""; return ;;
        --encoding) _quorvin_words "utf-8 windows-1252 cp437 cp850 cp852 cp866 windows-1250 windows-1251 windows-1253 cp932 cp936 cp949 cp950"; return ;;
      esac
      if [[ $cur == -* ]]; then
        _quorvin_words "--output --format --label --folder --pattern --columns --bytes --dates --made --encoding --replace -q --quiet --help"
        return
      fi
      _quorvin_files -f
      ;;
    "refresh")
      if [[ $cur == -* ]]; then
        _quorvin_words "-q --quiet --json --help"
        return
      fi
      _quorvin_lines "$(_quorvin_own_folders)"
      ;;
    "sources")
      if [[ $cur == -* ]]; then
        _quorvin_words "-q --quiet --json --help"
        return
      fi
      _quorvin_words "add remove move"
      ;;
    "sources add")
      case "$prev" in
        --name) _quorvin_words ""; return ;;
      esac
      if [[ $cur == -* ]]; then
        _quorvin_words "--name -q --quiet --help"
        return
      fi
      _quorvin_files -f
      ;;
    "sources remove")
      if [[ $cur == -* ]]; then
        _quorvin_words "-q --quiet --help"
        return
      fi
      _quorvin_lines "$(_quorvin_own_folders)"
      ;;
    "sources move")
      if [[ $cur == -* ]]; then
        _quorvin_words "-q --quiet --help"
        return
      fi
      _quorvin_lines "$(_quorvin_own_folders)"
      ;;
    "history")
      case "$prev" in
        --number) _quorvin_words ""; return ;;
      esac
      if [[ $cur == -* ]]; then
        _quorvin_words "--restore --number --json --help"
        return
      fi
      _quorvin_lines "$(_quorvin_own_folders)"
      ;;
    "cache")
      if [[ $cur == -* ]]; then
        _quorvin_words "--clear --unused --json --help"
        return
      fi
      ;;
  esac
}
complete -F _quorvin_cli quorvin-cli
