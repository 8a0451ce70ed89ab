# Sourced by ./zo: one Wine session for a build folder.
#   zo_wine_begin BUILD_DIR ARCH [SCREEN]   private prefix, one Xvfb, persistent wineserver
#   zo_wine_end                              stops what zo_wine_begin started
# The prefix lives in BUILD_DIR/wineprefix[-SCREEN] and is created once.

zo_free_display() {
  local n=90
  while [ -e "/tmp/.X$n-lock" ] || [ -e "/tmp/.X11-unix/X$n" ]; do n=$((n + 1)); done
  echo "$n"
}

zo_wine_begin() {
  local build=$1 arch=$2 screen=${3:-1280x1024}
  export WINEDEBUG=${ZO_WINEDEBUG:--all}
  export WINEDLLOVERRIDES="mscoree,mshtml="
  export WINEARCH=win32
  [ "$arch" = x86_64 ] && export WINEARCH=win64
  local suffix=""
  [ "$screen" != 1280x1024 ] && suffix="-$screen"
  export WINEPREFIX="$build/wineprefix$suffix"
  export ZO_MAIN_PREFIX="$build/wineprefix"
  export ZO_SESSION_SCREEN=$screen
  export ZO_WINE_LOG="$build/wine$suffix.log"
  : >"$ZO_WINE_LOG"

  if [ -z "${ZO_USE_DISPLAY:-}" ]; then
    local n; n=$(zo_free_display)
    Xvfb ":$n" -screen 0 "${screen}x24" -nolisten tcp >>"$ZO_WINE_LOG" 2>&1 &
    ZO_XVFB_PID=$!
    export DISPLAY=":$n"
    for _ in $(seq 50); do [ -e "/tmp/.X11-unix/X$n" ] && break; sleep 0.1; done
  else
    export DISPLAY=$ZO_USE_DISPLAY
  fi

  if [ ! -f "$WINEPREFIX/.zo-ready" ] && [ -n "$suffix" ] && [ -f "$ZO_MAIN_PREFIX/.zo-ready" ]; then
    # A prefix for another screen size starts as the main one: hard links for the files Wine
    # only reads, own copies of those it rewrites (the registry, the update stamp). Much quicker
    # than a second wineboot; Wine describes the new screen when it starts on it.
    rm -rf "$WINEPREFIX"
    if cp -al "$ZO_MAIN_PREFIX" "$WINEPREFIX" 2>>"$ZO_WINE_LOG"; then
      for f in system.reg user.reg userdef.reg .update-timestamp; do
        [ -e "$ZO_MAIN_PREFIX/$f" ] && rm -f "$WINEPREFIX/$f" && cp -p "$ZO_MAIN_PREFIX/$f" "$WINEPREFIX/$f"
      done
    else
      rm -rf "$WINEPREFIX"
    fi
  fi

  if [ ! -f "$WINEPREFIX/.zo-ready" ]; then
    echo "zo: creating Wine prefix $WINEPREFIX (once)" >&2
    mkdir -p "$WINEPREFIX"
    wineboot -i >>"$ZO_WINE_LOG" 2>&1
    wineserver -w
    # Without a window manager every hide/destroy of a top-level window waits 2 s.
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >>"$ZO_WINE_LOG" 2>&1
    # Debian's Wine does not see its own fonts (Tahoma, Marlett): dialog units depend on them.
    cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null
    wineserver -w
    touch "$WINEPREFIX/.zo-ready"
  fi

  # A persistent server and one idle process keep Wine's helper processes alive for the
  # whole run, so none of them inherits (and holds open) a test's output.
  wineserver -p >>"$ZO_WINE_LOG" 2>&1
  wine cmd /c "ping -n 100000 127.0.0.1 >nul" </dev/null >>"$ZO_WINE_LOG" 2>&1 &
  ZO_KEEPALIVE_PID=$!
  # The i686 runtime DLLs sit beside the executables; nothing else to put on WINEPATH.
}

zo_wine_end() {
  [ -n "${WINEPREFIX:-}" ] && wineserver -k >/dev/null 2>&1
  [ -n "${ZO_KEEPALIVE_PID:-}" ] && { kill "$ZO_KEEPALIVE_PID" 2>/dev/null; wait "$ZO_KEEPALIVE_PID" 2>/dev/null; }
  [ -n "${ZO_XVFB_PID:-}" ] && { kill "$ZO_XVFB_PID" 2>/dev/null; wait "$ZO_XVFB_PID" 2>/dev/null; }
  ZO_KEEPALIVE_PID= ZO_XVFB_PID=
}
