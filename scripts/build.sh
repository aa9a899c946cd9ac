# Configuring and building. Sourced, not run by itself.

# build PRESET TARGET...: in build/PRESET. All it prints goes to the error output, which leaves the
# standard output to the program that is run afterwards.
#
# One run at a time has a build folder, from here to its end: none builds anew what another is
# running. leave_build gives it back earlier.
build() {
    local preset=$1 target targets=()
    shift
    for target in "$@"; do
        targets+=(--target "$target")
    done
    mkdir -p "$root/build"
    exec {build_lock}> "$root/build/$preset.lock"
    if ! flock -n "$build_lock"; then
        say "Waiting for another run on build/$preset ..."
        flock "$build_lock"
    fi
    local folder=$root/build/$preset
    if [[ ! -f $folder/build.ninja || $root/CMakePresets.json -nt $folder/configured ]]; then
        cmake -S "$root" --preset "$preset" >&2 || fail "The configuration failed."
        touch "$folder/configured"
    fi
    cmake --build "$folder" "${targets[@]}" >&2 || fail "The build failed."
}

leave_build() {
    exec {build_lock}>&-
}

# release_program NAME [ARGUMENT...]: runs what the release build has made; its lines end as here.
release_program() {
    local name=$1
    shift
    wine "$root/build/release/bin/$name.exe" "$@" | sed -u 's/\r$//'
    return "${PIPESTATUS[0]}"
}
