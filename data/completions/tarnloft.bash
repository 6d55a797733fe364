# shellcheck shell=bash
_tarnloft() {
  local word=${COMP_WORDS[COMP_CWORD]} mode=${COMP_WORDS[1]}
  local modes='--export-page --seed-logo --selftest --quick-grab --new-brand --preferences'
  COMPREPLY=()
  compopt -o filenames
  case $COMP_CWORD:$mode in
    1:-*)
      compopt +o filenames
      mapfile -t COMPREPLY < <(compgen -W "$modes" -- "$word")
      ;;
    2:--export-page | 2:--seed-logo) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
    3:--export-page) mapfile -t COMPREPLY < <(compgen -f -X '!*.html' -- "$word"; compgen -d -- "$word") ;;
    *:-*) ;;
    *) mapfile -t COMPREPLY < <(compgen -f -X '!*.tarnloft.zip' -- "$word"; compgen -d -- "$word") ;;
  esac
}
complete -F _tarnloft tarnloft
