#!/usr/bin/env bash
# Fault check: does the test suite catch a set of deliberate one-line faults in the library?
#
#   tools/fault-check.sh [--tree DIR] [--arch i686|x86_64] [--out FILE] [ID...]
#
# Works on a scratch copy (default /tmp/zo-fault/src, refreshed from this checkout's working tree
# unless --tree names an existing copy) with its own build folder, never on the checkout itself.
# For each fault (all, or the IDs given): apply it with sed, check that exactly the intended line
# changed, build and run the suite until its first failing CTest entry, record that entry and its
# failing GoogleTest cases, restore the file. Then the clean copy is built and run once more: it
# must pass, or the results mean nothing.
# Output: one table row per fault (also written to FILE, default <scratch>/fault-table.md).
set -u
here=$(cd "$(dirname "$0")/.." && pwd)
tree=""; arch=i686; out=""; only=()
while [ $# -gt 0 ]; do
  case "$1" in
    --tree) tree=$2; shift 2;;
    --arch) arch=$2; shift 2;;
    --out) out=$2; shift 2;;
    -h|--help) sed -n '2,13p' "$0" | sed 's/^# \{0,1\}//'; exit 0;;
    *) only+=("$1"); shift;;
  esac
done

# id | file | sed expression (applied to the one line it matches) | what the fault is
faults=$(cat <<'EOF'
F01|core/ZoThemeMath.cpp|s/if (area < kArea5M)/if (area <= kArea5M)/|size-class boundary: exactly 5M pixels counted as 3M
F02|core/ZoPaintedWnd.cpp|s/if (mode == ZoPaint_DirectAfterErase)/if (mode != ZoPaint_DirectAfterErase)/|swapped condition: erasing suppressed for the wrong paint modes
F03|core/ZoMemDC.cpp|s/^        ::DeleteObject(m_hBitmap);/        (void)m_hBitmap;/|memory DC leaks its bitmap
F04|images/ZoResourceImage.cpp|s/const ZoBlitRect cell = {uw \* ux, uh \* uy, uw, uh};/const ZoBlitRect cell = {uw * ux, uh * uy, uw - 1, uh};/|off-by-one: skin cell one pixel too narrow
F05|images/ZoResourceImage.cpp|s/id += L"_3M";/id += L"_5M";/|wrong resource name for the 3M size class
F06|controls/ZoButton.cpp|s/const int kFaceSlots\[BS_ZO_COUNT\] = {13, 14, 15, 17};/const int kFaceSlots[BS_ZO_COUNT] = {13, 14, 16, 17};/|wrong colour slot: pressed button face (the line slots 18-21 share one colour, so a line-slot mix-up would not show)
F07|controls/ZoScrollBar.cpp|s/^        SetTimer(TimerFirstDelay, kFirstDelayMs, NULL);/        ;/|arrow press does not arm the first auto-repeat delay
F08|controls/ZoScrollBarMath.cpp|s/low, low + buttonUnit - gap);/low, low + buttonUnit - gap + 1);/|off-by-one: previous arrow rectangle one pixel long
F09|controls/SeparatorWnd.cpp|s/::SendMessageW(m_pNotify ? m_pNotify->GetSafeHwnd() : NULL, ZoMsg_SeparatorMoved/if (0) ::SendMessageW(m_pNotify ? m_pNotify->GetSafeHwnd() : NULL, ZoMsg_SeparatorMoved/|missing notification: separator never reports its move
F10|controls/ZoProgressCtrl.cpp|s/const int column = IsWindowEnabled() ? kEnabledColumn/const int column = !IsWindowEnabled() ? kEnabledColumn/|swapped condition: enabled bar drawn with the disabled cells
F11|controls/ZoStatic.cpp|s/\(format = kWrappingText .\) DT_RIGHT;/\1 DT_CENTER;/|right-aligned static text drawn centred
F12|controls/ZoSpinButtonCtrl.cpp|s/return pt.y < (client.top + client.bottom) \/ 2 ? 1 : 2;/return pt.y <= (client.top + client.bottom) \/ 2 ? 1 : 2;/|off-by-one: vertical spin hit-test boundary
F13|frames/ZoMenuXP.cpp|s/size.cx = ItemDataTextWidth(data) + kMenuBarExtraWidth;/size.cx = ItemDataTextWidth(data) + kMenuBarExtraWidth + 1;/|off-by-one: menu bar item one pixel wide
F14|mfccompat/src/gdi/dc.cpp|s/RECT rect = { x, y, x + cx, y + cy };/RECT rect = { x, y, x + cx, y + cy - 1 };/|layer: CDC::FillSolidRect(x, y, cx, cy) one row short
F15|mfccompat/src/core/string.cpp|s/for (int i = GetLength() - 1; i >= 0; --i)/for (int i = GetLength() - 1; i > 0; --i)/|layer: CString::ReverseFind never finds index 0
EOF
)

scratch=${ZO_FAULT_ROOT:-/tmp/zo-fault}
if [ -z "$tree" ]; then
  tree=$scratch/src
  mkdir -p "$tree"
  # The working tree as it is (tracked and new files), without build folders.
  (cd "$here" && git ls-files -co --exclude-standard -z | tar --null -T - -cf -) | tar -xmf - -C "$tree"  # -m: fresh times, so the copy rebuilds what changed
fi
tree=$(cd "$tree" && pwd)
out=${out:-$scratch/fault-table.md}
mkdir -p "$(dirname "$out")"
export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER:-ccache}
export CMAKE_C_COMPILER_LAUNCHER=${CMAKE_C_COMPILER_LAUNCHER:-ccache}

# Builds the scratch copy and runs the suite until the first failing CTest entry (a fault counts
# as caught once one entry fails); prints the failing entry and its failing GoogleTest cases.
run_suite() {
  local runlog=$1
  if ! cmake --build "$tree/build/$arch" >"$runlog" 2>&1; then echo "BUILD FAILED|"; return; fi
  # GoogleTest stops at its first failure too: a caught fault needs no more. The skin generator's
  # check reads no library code and is left out.
  (cd "$tree/build/$arch" && GTEST_FAIL_FAST=1 ctest --output-on-failure --stop-on-failure -E skins_reproducible) \
    >>"$runlog" 2>&1
  local failed cases
  failed=$(sed -n 's/^[[:space:]]*[0-9]*[[:space:]]*-[[:space:]]\([A-Za-z0-9_]*\) .*/\1/p' "$runlog" | sort -u | tr '\n' ' ')
  cases=$(sed -n 's/^\[  FAILED  \] \([A-Za-z0-9_/]*\.[A-Za-z0-9_/.]*\)[ ,].*/\1/p' "$runlog" | sort -u | head -4 | tr '\n' ' ')
  echo "${failed:-none}| ${cases}"
}

# Configures and builds the copy once (and installs what is missing), then one Wine session.
(cd "$tree" && ./zo build --arch "$arch") >"$scratch/build.log" 2>&1 || { echo "the copy does not build: $scratch/build.log" >&2; exit 1; }
. "$here/tools/wine-session.sh"
zo_wine_begin "$tree/build/$arch" "$arch"
restore=""
trap '[ -n "$restore" ] && cp "$restore.fault-orig" "$restore" && rm -f "$restore.fault-orig"; zo_wine_end' EXIT

{
  echo "| id | fault | file:line | failing CTest entries | failing cases (first few) |"
  echo "|---|---|---|---|---|"
} >"$out"
while IFS='|' read -r id file expr what; do
  [ -n "$id" ] || continue
  if [ ${#only[@]} -gt 0 ] && ! printf '%s\n' "${only[@]}" | grep -qx "$id"; then continue; fi
  path=$tree/$file
  cp "$path" "$path.fault-orig"; restore=$path
  sed -i "$expr" "$path"
  changed=$(diff "$path.fault-orig" "$path" | grep -c '^>')
  line=$(diff "$path.fault-orig" "$path" | sed -n 's/^\([0-9]*\)c[0-9]*$/\1/p' | head -1)
  if [ "$changed" -ne 1 ]; then
    row="| $id | $what | $file | NOT APPLIED ($changed lines changed) | |"
  else
    row="| $id | $what | $file:$line | $(run_suite "$scratch/$id.log") |"
  fi
  cp "$path.fault-orig" "$path"; rm -f "$path.fault-orig"; restore=""
  echo "$row" | tee -a "$out"
done <<<"$faults"

# The copy without faults must pass, or a failure above may not be the fault's.
echo "| - | no fault | - | $(run_suite "$scratch/clean.log") |" | tee -a "$out"
