#!/usr/bin/env bash
# KISOIMG reads every kind of its parameter file into a BMP and writes those that it says it writes; what it can not do, it
# says, and leaves everything as it was.
set -euo pipefail
addins=$1
work=$(mktemp -d)
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
cd "$work"
export ASAN_OPTIONS=detect_leaks=0  # of Qt's own

fail() { echo "kisoimg.sh: $1" >&2; exit 1; }
kisoimg() { "$addins/KISOIMG" "$@"; }

# differ FILE FILE: how many pixels do
differ() { compare -metric AE "$1" "$2" null: 2>&1 || true; }
colours() { convert "$1" -unique-colors -colorspace Gray txt: | sed -n 's/.* //; 2,$p' | xargs; }
expect_same() { [ "$(differ "$1" "$2")" = 0 ] || fail "$1 and $2 differ in $(differ "$1" "$2") pixels"; }

# expect_refusal TARGET WORDS...: the call fails, says why and which file, and TARGET is as it was
expect_refusal() {
  local target=$1 before
  before=$(sha1sum "$target" 2>&1 || true)
  shift
  ! kisoimg "$@" 2>said || fail "done all the same: $*"
  grep -q "KISOIMG: .*: " said || fail "no reason told: $*"
  [ "$(sha1sum "$target" 2>&1 || true)" = "$before" ] || fail "$target has changed by: $*"
}

# Two halves of plain colour: what JPEG keeps nearly and everything else exactly.
convert -size 32x16 xc:'#C02040' xc:'#FFFFFF' -append -depth 8 BMP3:wanted.bmp

# --- what it writes, it reads again, and so does another program
for kind in $(sed -n 's/\r//; s/^FFWT,.*,//p' "$addins/KISOIMG.AIP"); do
  cp wanted.bmp handed.bmp
  quality=$(sed -n "s/\r//; s/^FFWT,write \(-*[0-9]*\) .*,$kind\$/\1/p" "$addins/KISOIMG.AIP")
  kisoimg write "$quality" handed.bmp "$work/p.$kind" || fail "$kind not written"
  [ -e handed.bmp ] || fail "a file well written as $kind, and no sign of it"
  kisoimg read back.bmp "$work/p.$kind" || fail "$kind not read"
  case $kind in
    JPG | JPEG) [ "$(compare -fuzz 12% -metric AE wanted.bmp back.bmp null: 2>&1 || true)" = 0 ] || fail "$kind: other pixels" ;;
    PBM | WBMP | XBM) [ "$(colours back.bmp)" = 'gray(0) gray(255)' ] || fail "$kind: $(colours back.bmp)" ;;
    PGM) [ "$(convert back.bmp -colorspace HSL -channel g -separate -format '%[fx:maxima]' info:)" = 0 ] || fail "PGM: coloured" ;;
    *) expect_same wanted.bmp back.bmp ;;
  esac
done
for kind in PNG TIF WEBP PPM XPM; do
  convert "p.$kind" BMP3:other.bmp
  expect_same wanted.bmp other.bmp
done

# --- what another program has written
for kind in PNG GIF TGA PPM CUR; do
  convert wanted.bmp -type TrueColor -orient TopLeft -compress None "$kind:from.$kind"
  [ $kind != TGA ] || printf '\0\0\0\0\0\0\0\0TRUEVISION-XFILE.\0' >>from.TGA  # of those with a footer
  kisoimg read back.bmp "$work/from.$kind" || fail "$kind of another program not read"
  expect_same wanted.bmp back.bmp
done
echo '<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32"><rect width="32" height="16" fill="#C02040"/></svg>' >from.SVG
gzip -c from.SVG >from.SVGZ
for kind in SVG SVGZ; do
  kisoimg read back.bmp "$work/from.$kind"
  expect_same wanted.bmp back.bmp  # the lower half lets the white through
done

# --- the kind is told by the content
cp from.PNG lying.JPG
kisoimg read back.bmp "$work/lying.JPG"
expect_same wanted.bmp back.bmp

# --- transparent parts stand on white, half of black is a middle grey
convert -size 2x1 xc:transparent -fill '#00000080' -draw 'point 1,0' PNG32:glass.png
kisoimg read back.bmp "$work/glass.png"
convert -size 2x1 xc:white -depth 8 -fill '#7F7F7F' -draw 'point 1,0' BMP3:on_white.bmp
expect_same on_white.bmp back.bmp

# --- the first picture of an animation
convert wanted.bmp \( -size 32x32 xc:blue \) -loop 0 moving.gif
kisoimg read back.bmp "$work/moving.gif"
expect_same wanted.bmp back.bmp

# --- a photograph taken with the camera on its side: EXIF orientation 6, the top of the scene is at the right
convert wanted.bmp -rotate -90 -quality 100 side.jpg
{
  head -c 2 side.jpg
  printf '\xFF\xE1\x00\x22Exif\0\0MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0'
  tail -c +3 side.jpg
} >upright.jpg
kisoimg read back.bmp "$work/upright.jpg"
[ "$(compare -fuzz 12% -metric AE wanted.bmp back.bmp null: 2>&1 || true)" = 0 ] || fail "a photograph lies on its side"

# --- names: words of the command line that follow each other are one name, blank by blank
strange="a  b;'\"\$(touch ran)  日本語 .PNG"
cp from.PNG "$strange"
mapfile -t -d ' ' words < <(printf %s "read back.bmp $work/$strange")
rm back.bmp
kisoimg "${words[@]}"
expect_same wanted.bmp back.bmp
[ ! -e ran ] || fail "a name was run"

# --- what can not be done
echo rubbish >rubbish.PNG
head -c 40 from.PNG >cut.PNG
for name in rubbish.PNG cut.PNG missing.PNG; do
  expect_refusal back.bmp read back.bmp "$work/$name"
done
cp from.PNG target.ODD
for target in target.ODD new.GIF; do
  cp wanted.bmp handed.bmp
  expect_refusal "$target" write -1 handed.bmp "$work/$target"
  [ ! -e handed.bmp ] || fail "$target not written, and no sign of it"
done
# a kind for icons has sizes of its own: it refuses the others where its writer would shrink the picture
convert -size 300x200 xc:red BMP3:wide.bmp
for target in new.CUR new.ICNS; do
  cp wide.bmp handed.bmp
  expect_refusal "$target" write -1 handed.bmp "$work/$target"
done
for words in '' read 'read back.bmp' 'write back.bmp x.PNG' 'write 101 handed.bmp x.PNG' 'erase a b c'; do
  status=0
  kisoimg $words 2>said || status=$?
  [ $status = 2 ] && grep -q '^usage: ' said || fail "a wrong call: $words"
done

# --- what a name says is no option of Qt's: a picture brings its own plugin
mkdir -p plug/platforms
echo rubbish >plug/platforms/libevil.so
attack='p -platformpluginpath plug -platform evil .png'
cp from.PNG "$attack"
rm back.bmp
kisoimg read back.bmp p -platformpluginpath plug -platform evil .png || fail "a name was taken for options"
expect_same wanted.bmp back.bmp
rm "$attack"
cp wanted.bmp handed.bmp
kisoimg write -1 handed.bmp p -platformpluginpath plug -platform evil .png
[ -e "$attack" ] || fail "a name was taken for options in writing"

# --- names are bytes
bad=$'bad\xff.png' other=$'bad\xef\xbf\xbd.png'
echo other >"$other"
cp wanted.bmp handed.bmp
kisoimg write -1 handed.bmp "$bad"
[ "$(cat "$other")" = other ] || fail "a name that is no UTF-8 has become another file's"
kisoimg read back.bmp "$bad"
expect_same wanted.bmp back.bmp
expect_refusal "$other" read back.bmp "$other"

# --- nothing is opened but files
mkfifo pipe.PNG pipe.SVG
mkdir folder.PNG
for name in pipe.PNG pipe.SVG folder.PNG /dev/zero /dev/ptmx; do
  expect_refusal back.bmp read back.bmp "$name"
done

# --- a size is looked at first: one that needs more than half of the free memory is refused
declare -A needs=([SVG]=$((32 * 32 * 8)) [GIF]=$((32 * 32 * 8)) [TGA]=$((32 * 32 * 8)) [ICNS]=$((1024 * 1024 * 8)))
for kind in SVG GIF TGA ICNS; do
  name=from.$kind
  [ $kind != ICNS ] || name=p.ICNS
  KISO_FREE_MEMORY=$((2 * needs[$kind] - 1)) expect_refusal back.bmp read back.bmp $name
  KISO_FREE_MEMORY=$((2 * needs[$kind])) kisoimg read back.bmp $name || fail "$kind: refused, and half of the memory is enough"
done
convert -size 32x32 xc:red MNG:small.MNG
KISO_FREE_MEMORY=$((16 * 32 * 32 - 1)) expect_refusal back.bmp read back.bmp small.MNG
kisoimg read back.bmp small.MNG
echo '<svg xmlns="http://www.w3.org/2000/svg" width="30000" height="30000"/>' >vast.SVG
KISO_FREE_MEMORY=4000000000 expect_refusal back.bmp read back.bmp vast.SVG
(
  ulimit -t 20
  KISO_FREE_MEMORY=300000000 expect_refusal back.bmp read back.bmp <(:) # a pipe by another name
)

# --- a target is written whole or not at all: a full disk, a directory that can not be written to
cp from.PNG target.PNG
convert -size 300x300 plasma:red-blue BMP3:large.bmp
cp large.bmp handed.bmp
(
  trap '' XFSZ
  ulimit -f 20
  expect_refusal target.PNG write -1 handed.bmp "$work/target.PNG"
)
cp from.PNG target.PNG
convert -size 60x50 plasma:red-blue BMP3:handed.bmp
(
  trap '' XFSZ
  ulimit -f 4  # of about 8 KB: less than what a buffer holds back until the end
  expect_refusal target.PNG write -1 handed.bmp "$work/target.PNG"
)
[ ! -e handed.bmp ] || fail "a full disk, and no sign of it"
expect_refusal nowhere write -1 large.bmp "$work/no/directory/target.PNG"
[ "$(ls | grep -c '^target.PNG')" = 1 ] || fail "a part of a file is left: $(ls)"

# --- the rights of the old file stay
cp from.PNG target.PNG
chmod 640 target.PNG
cp wanted.bmp handed.bmp
kisoimg write -1 handed.bmp target.PNG
[ "$(stat -c %a target.PNG)" = 640 ] || fail "a target with other rights: $(stat -c %a target.PNG)"

# --- killed between taking the file and writing the target: the target is as it was, and what was handed over is gone
convert -size 2000x1500 xc: +noise Random BMP3:noise.bmp
status=0
until [ $status = 137 ]; do  # unless it was done before it could be killed
  cp from.PNG target.PNG
  cp noise.bmp handed.bmp
  "$addins/KISOIMG" write -1 handed.bmp "$work/target.PNG" &
  while [ -e handed.bmp ]; do sleep 0.01; done
  kill -KILL $!
  status=0
  wait $! || status=$?
done
cmp from.PNG target.PNG || fail "a killed run has changed the target"
[ ! -e handed.bmp ] || fail "a killed run, and no sign of it"
