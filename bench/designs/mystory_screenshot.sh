#!/bin/sh
# A picture of "My Story" with a dozen saved designs, pictures and videos mixed: previews and movies made
# with ffmpeg, the designs stored with quillet-tool, the tab shown by the application under Xvfb.
# Usage: bench/designs/mystory_screenshot.sh BUILD_DIR OUT.png
set -eu
build=${1:?build directory}
out=${2:?output picture}
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export QUILLET_HOME="$home"
docs="$home/Documents"
mkdir -p "$docs"

# Picture sources of ffmpeg's lavfi, one look per design.
set -- "gradients=s=540x960:c0=0xE05863:c1=0xFBC1F2:n=2" "mandelbrot=s=540x960" "testsrc2=s=540x960" \
    "gradients=s=540x960:c0=0x19D2E5:c1=0x4326CA:n=2" "cellauto=s=540x960:rule=110" "life=s=540x960:mold=10:ratio=0.3" \
    "gradients=s=540x960:c0=0xFCAC39:c1=0xFF4A86:n=3" "smptehdbars=s=540x960" "gradients=s=540x960:c0=0x36D08E:c1=0xFF54CE" \
    "rgbtestsrc=s=540x960" "gradients=s=540x960:c0=0x634EF4:c1=0x5FE9C9:n=4" "mandelbrot=s=540x960:start_scale=1"
i=0
for source in "$@"; do
    i=$((i + 1))
    stamp=$(date +%s%6N)
    ffmpeg -loglevel error -y -f lavfi -i "$source" -frames:v 1 "$docs/$stamp.jpg"
    video=false
    sample_video=""
    case $i in
    3 | 7 | 10)
        video=true
        ffmpeg -loglevel error -y -f lavfi -i "$source" -t 1 -c:v libx264 -pix_fmt yuv420p "$docs/$stamp.mov"
        sample_video="file:///var/mobile/Containers/Data/Application/OLD/Documents/$stamp.mov"
        ;;
    5 | 11)
        video=true
        ffmpeg -loglevel error -y -f lavfi -i "$source" -t 1 -vf scale=270:-1 "$docs/$stamp.gif"
        sample_video="file://$docs/$stamp.gif"
        ;;
    esac
    printf '{"sample_image": "%s.jpg", "sample_video": "%s", "width": 1080, "height": 1920, "is_editsaved": true, "is_Video": %s}\n' \
        "$stamp" "$sample_video" "$video" >"$home/design.json"
    if [ "$video" = true ]; then
        "$build/bin/quillet-tool" store save "$home/design.json" --video >/dev/null 2>&1
    else
        "$build/bin/quillet-tool" store save "$home/design.json" >/dev/null 2>&1
    fi
done
xvfb-run -a "$build/bin/quillet" --tab 4 --screenshot "$out" --screenshot-delay 3000 >/dev/null 2>&1
echo "$out"
