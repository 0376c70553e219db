# shellcheck shell=bash
# Sourced by the whole-process benchmark scripts: installs hyperfine, GNU time and jq when
# they are missing.
need=()
command -v hyperfine >/dev/null || need+=(hyperfine)
[ -x /usr/bin/time ] || need+=(time)
command -v jq >/dev/null || need+=(jq)
if [ ${#need[@]} -gt 0 ]; then
  sudo=""; [ "$(id -u)" -ne 0 ] && sudo=sudo
  $sudo apt-get update -qq && $sudo apt-get install -y -qq "${need[@]}"
fi
