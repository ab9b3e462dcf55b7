# Sourced by the other scripts: installs Debian packages that are missing, and says which.

install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "installing: ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(cmake make g++ libc6-dev libcli11-dev libpng-dev)
test_packages=("${build_packages[@]}" libgtest-dev rapidjson-dev python3 python3-jsonschema python3-numpy python3-pytest python3-matplotlib clang-format clang-tidy git locales groff-base mandoc zsh chromium chromium-driver)

# The compiler of the sanitizer build and of the fuzz targets, with what names functions for it, by which known leaks are
# told from others; and what packages are built with.
sanitizer_packages=(clang libclang-rt-14-dev llvm)
test_packages+=("${sanitizer_packages[@]}")
fuzz_packages=("${build_packages[@]}" "${sanitizer_packages[@]}" rapidjson-dev)
debian_packages=("${build_packages[@]}" build-essential debhelper dh-python dpkg-dev doxygen fakeroot lintian)
