#!/bin/sh
# Takes the README's pictures of the desktop program: each script of
# screenshots/ is played on a real drawing in a virtual X display.
# Usage: doc/screenshots.sh [BUILD_DIR] [EXTERNAL_DRAWINGS]
set -e
here=$(cd "$(dirname "$0")" && pwd)
build=$(cd "${1:-$here/../build}" && pwd)
external=${2:-$here/../../shared/data/external}
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data"
unset QT_QPA_PLATFORM
cd "$here/images"
shoot() { # events drawing
  echo "screenshots/$1 on $2"
  xvfb-run -a -s "-screen 0 1280x800x24" "$build/bin/verdani" --size 1280x800 \
    --events "$here/screenshots/$1" "$external/$2"
}
shoot sample_drawing.events DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf
shoot hatches_and_linetypes.events qcad__qcad/examples/example00.dxf
shoot blocks_and_dimensions.events qcad__qcad/examples/entities.dxf
