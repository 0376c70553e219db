#!/usr/bin/env bash
# The floors of src/, bottom to top; a folder may include only folders on floors below its
# own (and itself). Prints each folder's includes and fails on any that points up or sideways,
# and on a Qt header below the view.
set -euo pipefail
cd "$(dirname "$0")/../src"

floors=(base state document words decode metatags "analysis checks" commands "ui cli")
declare -A floor
for i in "${!floors[@]}"; do
  for folder in ${floors[$i]}; do floor[$folder]=$i; done
done

status=0
for dir in */; do
  folder=${dir%/}
  if [ -z "${floor[$folder]+set}" ]; then
    echo "src/$folder: not on any floor (add it to scripts/check-layers.sh)"
    status=1
    continue
  fi
  uses=()
  while IFS=: read -r file line target; do
    [ "$target" = "$folder" ] && continue
    uses+=("$target")
    if [ -z "${floor[$target]+set}" ] || [ "${floor[$target]}" -ge "${floor[$folder]}" ]; then
      echo "src/$file:$line includes $target/, which is not below $folder/"
      status=1
    fi
  done < <(grep -rnoE '^#include "[a-z_]+/' "$folder" | sed -E 's|#include "||; s|/$||')
  if [ "${floor[$folder]}" -lt "${floor[ui]}" ] && grep -rnE '^#include <Q' "$folder"; then
    echo "src/$folder: a Qt header below the view"
    status=1
  fi
  printf '%-9s -> %s\n' "$folder" "$(printf '%s\n' "${uses[@]}" | sort -u | tr '\n' ' ')"
done
[ "$status" -eq 0 ] && echo "layers: every include points down"
exit "$status"
