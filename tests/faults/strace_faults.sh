#!/usr/bin/env bash
# Fault injection on saving a page. Runs `zentrel-cli rebuild PAGE -o OUT --set description=x`
# on a 4 MB page with strace failing the save's system calls (errors) or killing the program
# at them, and kills it at timed points spread over a whole run. After every run OUT must be
# byte-identical to its old contents or to the complete new page, never partial or empty. An
# error must leave no temporary file (.out.html.zentrel-*) and print a message naming the file,
# the step and the cause; a kill between the temporary's creation and the rename necessarily
# leaves the temporary (the old file intact), which is counted apart and cleared by the next
# save. Then the situations: read-only folder (user and mount), read-only target, a folder, a
# FIFO, a device or a dangling link as target (all refused), a symbolic link as target (kept),
# a full disk (small tmpfs).
# Needs root for the mounts and the unprivileged runs (setpriv); strace: scripts/install-deps.sh.
# Usage: tests/faults/strace_faults.sh [path/to/zentrel-cli]   (default build/dev/bin)
set -u
cd "$(dirname "$0")/../.."
cli=$(realpath "${1:-build/dev/bin/zentrel-cli}")
command -v strace >/dev/null || { echo "strace is missing (scripts/install-deps.sh)"; exit 2; }
[ -x "$cli" ] || { echo "no $cli: build it first (cmake --build --preset dev --target zentrel-cli)"; exit 2; }

work=$(mktemp -d /tmp/zentrel-faults.XXXXXX)
chmod 755 "$work"
mounts=()
cleanup() {
  for m in "${mounts[@]}"; do umount "$m" 2>/dev/null; done
  rm -rf "$work"
}
trap cleanup EXIT

tried=0 passed=0 kept_old=0 got_new=0 temp_left=0
failures=()

declare -A cause=([ENOSPC]="No space left on device" [EIO]="Input/output error"
  [EDQUOT]="Disk quota exceeded" [EFBIG]="File too large" [EACCES]="Permission denied"
  [EROFS]="Read-only file system" [EMFILE]="Too many open files" [EPERM]="Operation not permitted"
  [EXDEV]="Invalid cross-device link" [EBUSY]="Device or resource busy"
  [EINTR]="Interrupted system call" [ENOENT]="No such file or directory")
declare -A step=([openat]="creating a temporary file" [write]="writing" [fsync]="flushing"
  [close]="closing" [rename]="renaming the temporary file")

# --- the page, the old target and the expected new target ---------------------------------
page=$work/page.html
{
  printf '<html>\r\n<head>\r\n<title>Fault injection page</title>\r\n'
  printf '<meta name="description" content="the old description">\r\n</head>\r\n<body>\r\n'
  printf '<p>Spades, rakes and hoes for the garden.</p>\r\n<script>\r\n'
  # Script text is left out of the word count, so the page stays analysable at any size.
  yes 'var garden = "spades rakes hoes seeds soil water sun";' | head -c $((4 * 1024 * 1024))
  printf '\r\n</script>\r\n</body>\r\n</html>\r\n'
} >"$page"
old=$work/old.html
printf '<html><head><title>Old</title></head><body>the old contents</body></html>\r\n' >"$old"
dir=$work/out
mkdir "$dir"
chmod 755 "$dir"
out=$dir/out.html
new=$work/new.html

reset() {
  rm -f "$1"/.*.zentrel-* 2>/dev/null
  cp "$old" "$2"
}
temps() { find "$1" -maxdepth 1 -name '.*.zentrel-*' | wc -l; }
rebuild() { "$cli" rebuild "$page" -o "$out" --set description=x; }

reset "$dir" "$out"
rebuild 2>"$work/err" || { echo "clean run failed: $(cat "$work/err")"; exit 1; }
cp "$out" "$new"
if cmp -s "$new" "$old" || [ ! -s "$new" ]; then
  echo "the clean run did not write the new page"
  exit 1
fi
echo "page $(stat -c %s "$page") bytes; new target $(stat -c %s "$new") bytes"

fail() {
  failures+=("$1")
  echo "FAIL: $1"
}

# Checks OUT after a run. $1 label, $2 what may be there: old, new, either; $3 temps allowed.
check_target() {
  local label=$1 want=$2 allow_temp=$3 what=partial
  tried=$((tried + 1))
  if cmp -s "$out" "$old"; then what=old; elif cmp -s "$out" "$new"; then what=new; fi
  local t
  t=$(temps "$dir")
  if [ "$what" = partial ]; then
    fail "$label: target is neither the old nor the new file ($(stat -c %s "$out" 2>/dev/null || echo missing) bytes)"
    return 1
  fi
  if [ "$want" != either ] && [ "$what" != "$want" ]; then
    fail "$label: target is the $what file, expected the $want one"
    return 1
  fi
  if [ "$t" -gt 0 ]; then
    if [ "$allow_temp" != yes ] || [ "$what" != old ]; then
      fail "$label: $t temporary file(s) left (target: $what)"
      return 1
    fi
    temp_left=$((temp_left + 1))
  fi
  [ "$what" = old ] && kept_old=$((kept_old + 1))
  [ "$what" = new ] && got_new=$((got_new + 1))
  passed=$((passed + 1))
  return 0
}

# The message must name the file, the step and the cause.
check_message() {
  local label=$1 errfile=$2 stepText=$3 causeText=$4
  if ! grep -qF "\"$out\"" "$errfile" || ! grep -qF "$stepText" "$errfile" ||
    ! grep -qF "$causeText" "$errfile"; then
    fail "$label: message lacks file/step/cause: $(cat "$errfile")"
    passed=$((passed - 1))
  fi
}

# --- where the save's system calls fall -------------------------------------------------------
reset "$dir" "$out"
strace -f -qq -o "$work/trace" -e trace=openat,write,fchmod,fsync,close,rename,unlink \
  "$cli" rebuild "$page" -o "$out" --set description=x 2>/dev/null
# Ordinal of each call among the calls of its name (what strace's when= counts).
eval "$(awk -v out="$out" '
  { if (match($0, /[a-z0-9_]+\(/) == 0) next
    name = substr($0, RSTART, RLENGTH - 1); n[name]++ }
  name == "openat" && /\.zentrel-/ && !tmp { tmp = n[name]; fd = $NF; print "n_open=" tmp }
  name == "write" && fd != "" && index($0, "write(" fd ",") && !done { w = w " " n[name] }
  name == "fchmod" && fd != "" && index($0, "fchmod(" fd ",") && !done { print "n_fchmod=" n[name] }
  name == "fsync" && fd != "" && index($0, "fsync(" fd ")") && !done { print "n_fsync=" n[name] }
  name == "close" && fd != "" && index($0, "close(" fd ")") && !done { print "n_close=" n[name]; done = 1 }
  name == "rename" && /\.zentrel-/ { print "n_rename=" n[name]; renamed = 1 }
  name == "openat" && renamed && /O_DIRECTORY/ && !dirsync { dirsync = n[name]; print "n_dirsync=" dirsync }
  name == "openat" && !tmp && index($0, "page.html") && !pageread { pageread = n[name]; print "n_pageread=" pageread }
  END { print "n_writes=\"" w "\"" }' "$work/trace")"
for v in n_open n_fsync n_close n_rename n_dirsync n_pageread; do
  [ -n "${!v:-}" ] || { echo "could not find the $v call in the trace"; exit 1; }
done
read -r -a writes <<<"$n_writes"
echo "save calls: openat #$n_open, write #${writes[*]}, fchmod #${n_fchmod:-?}, fsync #$n_fsync," \
  "close #$n_close, rename #$n_rename; folder openat #$n_dirsync"

# --- injected errors ------------------------------------------------------------------------
inject() {  # syscall errno when expected-target [step text]
  local sc=$1 en=$2 when=$3 want=$4 stepText=${5:-${step[$1]:-}}
  local label="$sc:error=$en:when=$when"
  reset "$dir" "$out"
  strace -f -qq -o /dev/null -e trace="$sc" -e inject="$sc:error=$en:when=$when" \
    "$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
  local status=$?
  if [ "$want" = new ]; then
    check_target "$label (retried)" new no
    [ $status -eq 0 ] || fail "$label: exit $status after a retried write"
    return
  fi
  check_target "$label" "$want" no || return
  [ $status -ne 0 ] || { fail "$label: exit status 0 after a failed save"; passed=$((passed - 1)); return; }
  [ -n "$stepText" ] && check_message "$label" "$work/err" "$stepText" "${cause[$en]}"
}
errors_before=$tried
for en in ENOSPC EACCES EROFS EMFILE EDQUOT; do inject openat "$en" "$n_open" old; done
for en in ENOSPC EIO EDQUOT EFBIG; do inject write "$en" "${writes[0]}" old; done
inject write ENOSPC "${writes[-1]}" old
inject write EINTR "${writes[0]}" new
inject write EINTR "${writes[0]}..$((${writes[0]} + 3))" new
for en in EIO ENOSPC EDQUOT EROFS EINTR; do inject fsync "$en" "$n_fsync" old; done
for en in EIO ENOSPC EDQUOT EINTR; do inject close "$en" "$n_close" old; done
for en in EXDEV EACCES EPERM EROFS ENOSPC EBUSY EIO EINTR; do inject rename "$en" "$n_rename" old; done
# A file system that refuses permission changes still gets the page: the permissions are
# the one thing a save may lose (the temporary file's 0600 then stays).
if [ -n "${n_fchmod:-}" ]; then
  inject fchmod EPERM "$n_fchmod" new
  echo "fchmod refused: the saved page has mode $(stat -c %a "$out") (old: 644)"
fi
# Failing the page's own read or the folder's open for its sync after the rename: nothing
# saved, or the new page saved whole.
reset "$dir" "$out"
strace -f -qq -o /dev/null -e trace=openat -e inject="openat:error=EIO:when=$n_pageread" \
  "$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
check_target "openat:error=EIO:when=$n_pageread (page read)" old no
reset "$dir" "$out"
strace -f -qq -o /dev/null -e trace=openat -e inject="openat:error=EACCES:when=$n_dirsync" \
  "$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
check_target "openat:error=EACCES:when=$n_dirsync (folder sync)" new no
errors_tried=$((tried - errors_before))

# --- kills at the save's system calls -------------------------------------------------------
kills_before=$tried
kill_at() {
  reset "$dir" "$out"
  # In a subshell of its own, so the shell's "Killed" notice goes nowhere.
  (
    strace -f -qq -o /dev/null -e trace="$1" -e inject="$1:signal=KILL:when=$2" \
      "$cli" rebuild "$page" -o "$out" --set description=x
    true
  ) >/dev/null 2>&1
  check_target "$1:signal=KILL:when=$2" either yes
}
kill_at openat "$n_pageread"
kill_at openat "$n_open"
for w in "${writes[@]}"; do kill_at write "$w"; done
[ -n "${n_fchmod:-}" ] && kill_at fchmod "$n_fchmod"
kill_at fsync "$n_fsync"
kill_at close "$n_close"
kill_at rename "$n_rename"
kill_at openat "$n_dirsync"

# --- kills at timed points over a whole run -------------------------------------------------
reset "$dir" "$out"
t0=$(date +%s%N)
rebuild 2>/dev/null
t1=$(date +%s%N)
total_ms=$(((t1 - t0) / 1000000))
timed=100
before_old=$kept_old before_new=$got_new before_temp=$temp_left
for i in $(seq 1 $timed); do
  reset "$dir" "$out"
  delay_ms=$((total_ms * i * 11 / (timed * 10)))
  "$cli" rebuild "$page" -o "$out" --set description=x 2>/dev/null &
  pid=$!
  sleep "$(printf '%d.%03d' $((delay_ms / 1000)) $((delay_ms % 1000)))"
  kill -KILL "$pid" 2>/dev/null
  wait "$pid" 2>/dev/null
  check_target "SIGKILL after ${delay_ms} ms of ${total_ms} ms" either yes
done
kills_tried=$((tried - kills_before))
kills_temp=$temp_left
timed_summary="timed kills: $((kept_old - before_old - temp_left + before_temp)) before the save began,"
timed_summary+=" $((temp_left - before_temp)) during it (temporary left), $((got_new - before_new)) after the rename"

# A killed save leaves its temporary; the next save of the same file clears it once it is
# stale (older than a minute), and leaves a fresh one (maybe another save's) alone.
reset "$dir" "$out"
touch "$dir/.out.html.zentrel-Stale1" "$dir/.out.html.zentrel-Fresh1"
touch -d '-2 minutes' "$dir/.out.html.zentrel-Stale1"
rebuild 2>/dev/null
tried=$((tried + 1))
if cmp -s "$out" "$new" && [ ! -e "$dir/.out.html.zentrel-Stale1" ] && [ -e "$dir/.out.html.zentrel-Fresh1" ]; then
  passed=$((passed + 1))
else
  fail "stale temporary not cleared by the next save (or a fresh one removed)"
fi
rm -f "$dir"/.out.html.zentrel-*

# --- situations -------------------------------------------------------------------------------
situation() {  # label expect-status-nonzero(yes/no) stepText causeText; target in $out
  local label=$1 stepText=$2 causeText=$3 status=$4
  tried=$((tried + 1))
  if [ "$status" -eq 0 ]; then fail "$label: exit status 0"; return; fi
  if ! grep -qF "\"$out\"" "$work/err" || ! grep -qF "$stepText" "$work/err" ||
    ! grep -qF "$causeText" "$work/err"; then
    fail "$label: message lacks file/step/cause: $(cat "$work/err")"
    return
  fi
  passed=$((passed + 1))
}
as_nobody() { setpriv --reuid=65534 --regid=65534 --clear-groups "$@"; }
saved_out=$out

# Read-only folder, as an ordinary user (root ignores folder permissions).
if [ "$(id -u)" -eq 0 ]; then
  ro=$work/ro-folder
  mkdir "$ro"
  out=$ro/out.html
  cp "$old" "$out"
  chown 65534:65534 "$out"  # the file itself may be written; its folder may not
  chmod 555 "$ro"
  as_nobody "$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
  situation "read-only folder (user)" "creating a temporary file" "Permission denied" $?
  cmp -s "$out" "$old" && [ "$(temps "$ro")" -eq 0 ] || fail "read-only folder: target or folder changed"
fi

# Read-only file system.
rofs=$work/ro-mount
mkdir "$rofs"
if mount -t tmpfs -o size=16m tmpfs "$rofs" 2>/dev/null; then
  mounts+=("$rofs")
  out=$rofs/out.html
  cp "$old" "$out"
  mount -o remount,ro "$rofs"
  "$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
  situation "read-only file system" "the file is read-only" "Read-only file system" $?
  cmp -s "$out" "$old" || fail "read-only file system: target changed"
else
  echo "note: cannot mount a tmpfs here; read-only mount and full disk skipped"
fi

# Read-only target in a writable folder, as its owner: not replaced.
if [ "$(id -u)" -eq 0 ]; then
  rot=$work/ro-target
  mkdir "$rot"
  chown 65534:65534 "$rot"
  out=$rot/out.html
  cp "$old" "$out"
  chown 65534:65534 "$out"
  chmod 444 "$out"
  as_nobody "$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
  situation "read-only target" "the file is read-only" "Permission denied" $?
  cmp -s "$out" "$old" && [ "$(stat -c %a "$out")" = 444 ] && [ "$(temps "$rot")" -eq 0 ] ||
    fail "read-only target: target changed or temporary left"
else
  echo "note: not root: the read-only folder and read-only target runs are skipped"
fi

# A folder as the target.
out=$work/a-folder
mkdir "$out"
touch "$out/inside"
"$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
situation "folder as target" "it is a folder" "" $?
[ -d "$out" ] && [ -e "$out/inside" ] || fail "folder as target: folder changed"

# A FIFO, a device (root) and a dangling link as the target: refused, left as they are.
out=$work/a-fifo
mkfifo "$out"
"$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
situation "FIFO as target" "it is a FIFO" "" $?
[ -p "$out" ] && [ "$(temps "$work")" -eq 0 ] || fail "FIFO as target: FIFO changed or temporary left"
if [ "$(id -u)" -eq 0 ]; then
  out=$work/a-device
  mknod "$out" c 1 3
  "$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
  situation "device as target" "it is a device" "" $?
  [ -c "$out" ] && [ "$(temps "$work")" -eq 0 ] || fail "device as target: device changed or temporary left"
fi
out=$work/a-dangling-link
ln -s "$work/nowhere.html" "$out"
"$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
situation "dangling link as target" "symbolic link to a missing file" "" $?
[ -L "$out" ] && [ ! -e "$work/nowhere.html" ] || fail "dangling link as target: changed"

# A symbolic link as the target, to a file on another file system: the link stays.
tried=$((tried + 1))
other=$work/other-fs
mkdir "$other"
linkdir=$work/links
mkdir "$linkdir"
if mount -t tmpfs -o size=16m tmpfs "$other" 2>/dev/null; then
  mounts+=("$other")
fi
cp "$old" "$other/real.html"
chmod 640 "$other/real.html"
ln -s "$other/real.html" "$linkdir/link.html"
out=$linkdir/link.html
if "$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err" && [ -L "$out" ] &&
  [ "$(readlink "$out")" = "$other/real.html" ] && cmp -s "$other/real.html" "$new" &&
  [ "$(stat -c %a "$other/real.html")" = 640 ] && [ "$(temps "$other")" -eq 0 ] &&
  [ "$(temps "$linkdir")" -eq 0 ]; then
  passed=$((passed + 1))
else
  fail "symbolic link target: $(cat "$work/err")"
fi

# A full disk: a tmpfs with room for the old page but not for the new one beside it.
full=$work/full
mkdir "$full"
if mount -t tmpfs -o size=2m tmpfs "$full" 2>/dev/null; then
  mounts+=("$full")
  out=$full/out.html
  cp "$old" "$out"
  "$cli" rebuild "$page" -o "$out" --set description=x 2>"$work/err"
  situation "full disk" "writing" "No space left on device" $?
  cmp -s "$out" "$old" && [ "$(temps "$full")" -eq 0 ] ||
    fail "full disk: target changed or temporary left"
  [ "$(df --output=used -k "$full" | tail -n 1)" -lt 100 ] || fail "full disk: space not given back"
fi
out=$saved_out

# --- tally ------------------------------------------------------------------------------------
echo
echo "injected errors: $errors_tried runs; kill points: $kills_tried runs" \
  "($((kills_tried - timed)) at system calls, $timed timed)"
echo "$timed_summary (a clean run takes ${total_ms} ms)"
echo "tried $tried, passed $passed, failed ${#failures[@]}"
echo "target intact (old file): $kept_old; complete new file: $got_new;" \
  "killed with the temporary left beside an intact old file: $kills_temp"
[ ${#failures[@]} -eq 0 ]
