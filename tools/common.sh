# What ./run, ./test, .ci/run and the scripts here share. Read by bash.

job_count() { nproc 2>/dev/null || echo 2; }

# configure_and_build PRESET [TARGETS...]
configure_and_build() {
  local preset=$1
  shift
  [ -e "build/$preset/build.ninja" ] || cmake --preset "$preset" || return
  cmake --build --preset "$preset" --parallel "$(job_count)" ${1:+--target "$@"}
}

# The compiler of a Windows build; fails when it is not installed.
compiler_of() {
  case $1 in
    win32) command -v i686-w64-mingw32-g++-posix ;;
    win64) command -v x86_64-w64-mingw32-g++-posix ;;
  esac
}

# has_fuzzer: clang is here, with its library for fuzzing.
has_fuzzer() { ls "$(clang++ -print-runtime-dir)"/libclang_rt.fuzzer-*.a; } >/dev/null 2>&1

# Which halves of Wine are here.
has_wine32() {
  command -v wine >/dev/null && [ -e /usr/lib/i386-linux-gnu/wine/i386-unix/ntdll.so ]
}
has_wine64() {
  command -v wine >/dev/null && [ -e /usr/lib/x86_64-linux-gnu/wine/x86_64-unix/ntdll.so ]
}

# can_run PRESET: whether that Windows build can be built and run here.
can_run() {
  compiler_of "$1" >/dev/null && tools/wine-run "$1" "build/$1/wineprefix" --prepare >&2
}

# windows_preset: which of the Windows builds can be built and run here; fails when none can.
windows_preset() {
  local preset
  for preset in win32 win64; do
    can_run "$preset" || continue
    if [ "$preset" = win64 ]; then
      echo "32-bit Windows programs can't be built or run here: using the 64-bit build instead." \
        "The 32-bit product itself stays untested." >&2
    fi
    echo "$preset"
    return
  done
  return 1
}
