#!/usr/bin/env bash
# Fault check: does the test suite catch a set of deliberate one-line faults in the library?
#
#   tools/fault-check.sh [--tree DIR] [--arch i686|x86_64] [--out FILE] [ID...]
#
# Works on a scratch copy (default /tmp/zo-fault/src, refreshed from this checkout's working tree
# unless --tree names an existing copy) with its own build folder, never on the checkout itself.
# For each fault (all, or the IDs given): apply it with sed, check that exactly the intended line
# changed, build and run the suite until its first failing CTest entry, record that entry and its
# failing GoogleTest cases, restore the file. Only the CTest entries named in the fault's row run.
# Then the clean copy is built and runs those entries once more: they must pass, or the results
# mean nothing. ZO_FAULT_ROOT moves the scratch folder (under the checkout's build/ the compiler
# cache serves the copy too).
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

# id | file | sed expression (applied to the one line it matches; no "|" in it) | CTest entries that
# run for it (a -R regex: the executables of the fault's family, so a run stays cheap) | what the fault is
faults=$(cat <<'EOF'
F01|core/ZoThemeMath.cpp|s/if (area < kArea5M)/if (area <= kArea5M)/|^test_core$|size-class boundary: exactly 5M pixels counted as 3M
F02|core/ZoPaintedWnd.cpp|s/if (mode == ZoPaint_DirectAfterErase)/if (mode != ZoPaint_DirectAfterErase)/|^test_controls$|swapped condition: erasing suppressed for the wrong paint modes
F03|core/ZoMemDC.cpp|s/^        ::DeleteObject(m_hBitmap);/        (void)m_hBitmap;/|^test_core$|memory DC leaks its bitmap
F04|images/ZoResourceImage.cpp|s/const ZoBlitRect cell = {uw \* ux, uh \* uy, uw, uh};/const ZoBlitRect cell = {uw * ux, uh * uy, uw - 1, uh};/|^test_images$|off-by-one: skin cell one pixel too narrow
F05|images/ZoResourceImage.cpp|s/id += L"_3M";/id += L"_5M";/|^test_images$|wrong resource name for the 3M size class
F06|controls/ZoButton.cpp|s/ZoColor_ButtonFacePressed, ZoColor_ButtonFaceDisabled}/ZoColor_ButtonFaceHot, ZoColor_ButtonFaceDisabled}/|^test_controls$|wrong colour slot: pressed button face
F07|controls/ZoScrollBar.cpp|s/^        SetTimer(TimerFirstDelay, kFirstDelayMs, NULL);/        ;/|^test_controls$|arrow press does not arm the first auto-repeat delay
F08|controls/ZoScrollBarMath.cpp|s/low, low + buttonUnit - gap);/low, low + buttonUnit - gap + 1);/|^test_controls$|off-by-one: previous arrow rectangle one pixel long
F09|controls/SeparatorWnd.cpp|s/::SendMessageW(m_pNotify ? m_pNotify->GetSafeHwnd() : NULL, ZoMsg_SeparatorMoved/if (0) ::SendMessageW(m_pNotify ? m_pNotify->GetSafeHwnd() : NULL, ZoMsg_SeparatorMoved/|^test_controls$|missing notification: separator never reports its move
F10|controls/ZoProgressCtrl.cpp|s/const int column = IsWindowEnabled() ? kEnabledColumn/const int column = !IsWindowEnabled() ? kEnabledColumn/|^test_controls$|swapped condition: enabled bar drawn with the disabled cells
F11|controls/ZoStatic.cpp|s/\(format = kWrappingText .\) DT_RIGHT;/\1 DT_CENTER;/|^test_controls$|right-aligned static text drawn centred
F12|controls/ZoSpinButtonCtrl.cpp|s/return pt.y < (client.top + client.bottom) \/ 2 ? 1 : 2;/return pt.y <= (client.top + client.bottom) \/ 2 ? 1 : 2;/|^test_controls$|off-by-one: vertical spin hit-test boundary
F13|frames/ZoMenuXP.cpp|s/size.cx = ItemDataTextWidth(data) + kMenuBarExtraWidth;/size.cx = ItemDataTextWidth(data) + kMenuBarExtraWidth + 1;/|^test_frames$|off-by-one: menu bar item one pixel wide
F14|mfccompat/src/gdi/dc.cpp|s/RECT rect = { x, y, x + cx, y + cy };/RECT rect = { x, y, x + cx, y + cy - 1 };/|^test_afx_gdi$|layer: CDC::FillSolidRect(x, y, cx, cy) one row short
F15|mfccompat/src/core/string.cpp|s/for (int i = GetLength() - 1; i >= 0; --i)/for (int i = GetLength() - 1; i > 0; --i)/|^test_afx_core$|layer: CString::ReverseFind never finds index 0
F16|controls/ZoEdit.cpp|s/const int kDisabledBackSlot = 30;/const int kDisabledBackSlot = 29;/|^test_controls$|wrong colour slot: disabled edit background
F17|controls/ZoEditInPlace.cpp|s/return row >= 0 && row < count ? row : -1;/return row >= 0 \&\& row <= count ? row : -1;/|^test_controls$|off-by-one: in-place editor moves down past the last row
F18|controls/ZoEditInPlace.cpp|s/^    ::SendMessageW(m_hNotify, WM_NOTIFY, listId,/    if (0) ::SendMessageW(m_hNotify, WM_NOTIFY, listId,/|^test_controls$|missing notification: in-place editor never reports its end
F19|controls/ZoComboBox.cpp|s/if (stateButton == STATE_SYSTEM_PRESSED .. dropped)/if (stateButton == STATE_SYSTEM_PRESSED \&\& dropped)/|^test_controls$|swapped condition: dropped combo's button not drawn pressed
F20|controls/ZoSliderMath.cpp|s/if (pos <= rangeMin \(..\) pos >= rangeMax)/if (pos < rangeMin \1 pos >= rangeMax)/|^test_controls$|off-by-one: slider accepts a tick at the range minimum
F21|controls/ZoSliderCtrl.cpp|s/const int kSelectionSlot = 47;/const int kSelectionSlot = 46;/|^test_controls$|wrong colour slot: slider selection bar
F22|controls/ZoRangeSliderCtrl.cpp|s/^    ::SendMessageW(::GetParent(m_hWnd), ZoMsg_RangeChanged/    if (0) ::SendMessageW(::GetParent(m_hWnd), ZoMsg_RangeChanged/|^test_controls$|missing notification: range slider never reports a changed range
F23|controls/ZoTabCtrl.cpp|s/return index == hoverIndex ? ZoTabState_Hover/return index != hoverIndex ? ZoTabState_Hover/|^test_controls$|swapped condition: hover cells drawn on the tabs not under the mouse
F24|dialogs/ZoDialogGeometry.cpp|s/else if (over == pressed)/else if (over != pressed)/|^test_dialogs$|swapped condition: dialog system button drawn pressed under another button
F25|dialogs/ZoMessageBoxRules.cpp|s/right = layout.buttons\[i\].left - 3;/right = layout.buttons[i].left - 4;/|^test_dialogs$|off-by-one: message box button gap one pixel wide
F26|frames/ZoFrameWnd.cpp|s/if (platformHit != HTNOWHERE .. !skinLoaded)/if (platformHit != HTNOWHERE \&\& !skinLoaded)/|^test_frames$|swapped condition: the skin's caption overrides the platform's hit code
F27|frames/ZoFrameWnd.cpp|s/const int down = atLeastZero(h - 3 \* u + 1);/const int down = atLeastZero(h - 3 * u);/|^test_frames$|off-by-one: frame side pieces one pixel short
F28|controls/ZoEditInPlace.cpp|s/CString reported = m_eEndReason == ZoEditEnd_Escape/CString reported = m_eEndReason != ZoEditEnd_Escape/|^test_controls$|swapped condition: in-place editor reports the typed text on Escape and the old one otherwise
F29|lists/ZoListCtrl.cpp|s/m_header.SetNoSortHeader(true);/m_header.SetNoSortHeader(false);/|^test_lists$|wrong flag: a header that does not sort still shows hot and pressed items
F30A|images/ZoResourcePNG.cpp|s/dst\[0\] = ZoComposeChannel(src\[0\], alpha, GetBValue(background));/dst[0] = ZoComposeChannel(src[0], alpha, GetRValue(background));/|^test_images$|wrong channel: half-transparent PNG pixels blend blue with the background's red
F31A|core/ZoMemDC.cpp|s/^    ::PatBlt(m_hDC, 0, 0, m_nWidth, m_nHeight, BLACKNESS);/    ;/|^test_core$|kept surface lent again still shows the last paint
F30B|lists/ZoTreeFile.cpp|s/    if (length < kByteEscape)/    if (length <= kByteEscape)/|^test_lists$|off-by-one: a 255-character text written with a one-byte length
F31B|lists/ZoTreeListCtrl.cpp|s/return node->GetDepthLevel() >= m_nLevels - 1;/return node->GetDepthLevel() > m_nLevels - 1;/|^test_lists$|off-by-one: tree rows at the level limit still expand
F32B|lists/ZoListGeometry.cpp|s/if (rowBottom <= areaTop)/if (rowBottom < areaTop)/|^test_lists$|off-by-one: a row ending on the band's top edge counts as shown
F33B|lists/ZoListCtrl.cpp|s/m_crSelectedRow = ZoSlotColor(kSlotSelectedRow,/m_crSelectedRow = ZoSlotColor(kSlotGrid,/|^test_lists$|wrong colour slot: selected row fill
F34B|lists/ZoTreeRowIndex.cpp|s/return row >= startRow ? row : -1;/return row > startRow ? row : -1;/|^test_lists$|off-by-one: the row index does not find a node in the row its search starts at
F35B|mfccompat/src/wnd/wndmsg.cpp|s/static_cast<int>(wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));/static_cast<int>(wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(NULL));/|^test_frames$|layer: WM_DRAWITEM handlers get no structure (seen through the menus)
F36B|mfccompat/src/wnd/wndmsg.cpp|s/(static_cast<BOOL>(wParam), static_cast<UINT>(lParam));/(!static_cast<BOOL>(wParam), static_cast<UINT>(lParam));/|^test_afx_wnd$|layer: WM_SHOWWINDOW cracked with its show flag inverted
F37B|mfccompat/src/wnd/wndmsg.cpp|s/static_cast<BOOL>(wParam), reinterpret_cast<NCCALCSIZE_PARAMS\*>(lParam));/static_cast<BOOL>(wParam), reinterpret_cast<NCCALCSIZE_PARAMS*>(NULL));/|^test_frames$|layer: WM_NCCALCSIZE handlers get no rectangles (seen through the frame)
F38B|dialogs/ZoMessageBoxDialog.cpp|s/const int result = ZoMessageBoxTypeRule(m_nType).escape;/const int result = ZoMessageBoxTypeRule(m_nType).results[0];/|^test_dialogs$|wrong result: Escape ends a message box with the right button's result
F39B|dialogs/ZoMessageBoxDialog.cpp|s/if (rule.known .. rule.captions\[i\] == 0)/if (rule.known \&\& rule.captions[i] != 0)/|^test_dialogs$|swapped condition: a message box removes the buttons its type shows
F40B|lists/ZoTreeListCtrlItem.cpp|s/if (!child->_readRecord(reader))/if (!child->_readRecord(reader) \&\& (child.release(), true))/|^fuzz_tree_file$|leak: a record of a damaged tree file that fails to read is never freed
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
  local runlog=$1 regex=$2
  if ! cmake --build "$tree/build/$arch" >"$runlog" 2>&1; then echo "BUILD FAILED|"; return; fi
  # GoogleTest stops at its first failure too: a caught fault needs no more. The skin generator's
  # check reads no library code and is left out.
  (cd "$tree/build/$arch" && GTEST_FAIL_FAST=1 ctest --output-on-failure --stop-on-failure -R "$regex" -E skins_reproducible) \
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
ran=()
while IFS='|' read -r id file expr regex what; do
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
    row="| $id | $what | $file:$line | $(run_suite "$scratch/$id.log" "$regex") |"
    ran+=("$regex")
  fi
  cp "$path.fault-orig" "$path"; rm -f "$path.fault-orig"; restore=""
  echo "$row" | tee -a "$out"
done <<<"$faults"

# The copy without faults must pass the same entries, or a failure above may not be the fault's.
clean=$(printf '%s\n' "${ran[@]}" | sort -u | paste -sd'|')
echo "| - | no fault | - | $(run_suite "$scratch/clean.log" "${clean:-.}") |" | tee -a "$out"
