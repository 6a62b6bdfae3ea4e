# The Debian packages of this project, by what they are for.

# Compiling, and everything that the program loads or calls when it runs.
run_packages="g++ cmake ninja-build ccache pkg-config
    qt6-base-dev libqt6opengl6-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-svg-dev
    libcups2-dev libexpat1-dev libsystemd-dev
    libfontconfig-dev libcairo2-dev libpango1.0-dev libpoppler-qt6-dev libpoppler-glib-dev libqpdf-dev libebook1.2-dev
    qt6-wayland qt6-image-formats-plugins qt6-translations-l10n fonts-dejavu-core fonts-liberation2 ghostscript"

# Real partners of the tests, and the formatter.
check_packages="cups-daemon cups-client cups-ipp-utils cups-ppdc dbus-daemon avahi-daemon xvfb at-spi2-core gir1.2-atspi-2.0 python3-gi libplist-utils poppler-utils qpdf evolution-data-server clang-format python3 strace
    libfreetype-dev fonts-noto-core fonts-droid-fallback"

# The linter and the fuzz targets.
lint_packages="clang clang-tidy libclang-rt-14-dev"

# Benchmarks and their yardsticks; Qt's own print dialog comes with qt6-base-dev.
bench_packages="libbenchmark-dev libplist-dev fonts-dejavu-core fonts-babelstone-han"

# Debian packages, and what judges them.
package_packages="dpkg-dev debhelper lintian"
