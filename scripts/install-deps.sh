#!/usr/bin/env bash
# Installs the Debian 12 packages that building, running and testing Quillet need.
# Safe to run repeatedly: only missing packages are installed.
set -euo pipefail

PACKAGES=(
  build-essential cmake ninja-build pkg-config git ca-certificates
  qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools
  qt6-multimedia-dev qt6-svg-dev qt6-lottie-dev qt6-5compat-dev qt6-tools-dev-tools
  qt6-qpa-plugins qt6-image-formats-plugins libqt6opengl6-dev libqt6printsupport6
  qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts
  qml6-module-qtquick-window qml6-module-qtquick-templates qml6-module-qtquick-shapes
  qml6-module-qtquick-dialogs qml6-module-qtqml-workerscript qml6-module-qtqml-models
  qml6-module-qt-labs-lottieqt qml6-module-qt5compat-graphicaleffects
  qml6-module-qtmultimedia qml6-module-qttest qml6-module-qtcore
  # The file dialog's own view lists folders through Qt's folder list model; without it opening one crashes.
  qml6-module-qt-labs-folderlistmodel
  libavcodec-dev libavformat-dev libavutil-dev libswscale-dev libswresample-dev libavfilter-dev
  # Qt Multimedia's GStreamer backend: playback and typefinding (base), MP4/MOV demuxing and HTTP
  # sources (good), the H.264, AAC and MP3 decoders (libav), and the video sink's GL upload (gl).
  gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-libav gstreamer1.0-gl
  ffmpeg libsqlite3-dev libwebp-dev nlohmann-json3-dev libcpp-httplib-dev libssl-dev libimagequant-dev libgif-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  clang-format clang-tidy
  xvfb xauth fonts-dejavu-core fonts-liberation2 fonts-noto-core
  fonts-lobster fonts-dancingscript fonts-bebas-neue fonts-league-spartan fonts-comfortaa fonts-roboto-slab
  fonts-lato fonts-open-sans fonts-quicksand fonts-cabin fonts-cantarell
)

missing=()
for p in "${PACKAGES[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if ((${#missing[@]})); then
  echo "Installing: ${missing[*]}"
  SUDO=""
  [[ $(id -u) -ne 0 ]] && SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
