#!/usr/bin/env bash
# What an SVG says of anything outside of itself is passed over, and the rest is drawn; what would take all time or all
# memory is refused.
set -euo pipefail
addins=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
export ASAN_OPTIONS=detect_leaks=0  # of Qt's own

fail() { echo "kisoimg_svg.sh: $1" >&2; exit 1; }

# expect_colour COLOUR: standard input is the inside of a drawing of 8 x 8, and all of it has this colour
expect_colour() {
  { echo '<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="8" height="8">'; cat; echo '</svg>'; } >p.SVG
  expect_file "$1" p.SVG
}
# expect_file COLOUR FILE
expect_file() {
  rm -f back.bmp
  "$addins/KISOIMG" read back.bmp "$2" 2>said || fail "not read: $(cat "$2" said)"
  local colours
  colours=$(convert back.bmp -unique-colors -depth 8 txt: | sed -n 's/.*\(#[0-9A-F]\{6\}\).*/\1/p' | xargs)
  [ "$colours" = "$1" ] || fail "$colours and not $1: $(head -c 500 "$2")"
}
expect_refusal() {
  rm -f back.bmp
  ! "$addins/KISOIMG" read back.bmp "$1" 2>said || fail "read all the same: $1"
  [ ! -e back.bmp ] && grep -q KISOIMG: said || fail "$1: $(cat said)"
}

red='#FF0000' white='#FFFFFF' blue='#0000FF'
convert -size 8x8 xc:blue PNG24:secret.png
echo '<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8"><rect width="8" height="8" fill="blue"/></svg>' >secret.svg
echo '* { fill: blue }' >secret.css
pixels=$(base64 -w0 secret.png) drawing=$(base64 -w0 secret.svg)
leading_out=$(printf '%s' "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='8' height='8'><image width='8' height='8' xlink:href='$work/secret.png'/></svg>" | base64 -w0)
mkdir -p 'data:image' && cp secret.png 'data:image/x.png'

# --- files and addresses: the white below shows
for to in secret.png "$work/secret.png" "file://$work/secret.png" " $work/secret.png" ./secret.png secret.svg /dev/ptmx /dev/zero \
  http://localhost:9/x.png data:image/x.png "data:$work/secret.png" "data:image/svg+xml;base64,$drawing" \
  "data:image/svg+xml;base64,$leading_out" 'data:image/png;base64,AAAA' "data:image/png;base64,AAAA;base64,$pixels" ''; do
  for name in xlink:href href XLINK:HREF x:href; do echo "<image width='8' height='8' $name='$to'/>"; done |
    expect_colour "$white"
done
expect_colour "$white" <<<"<use xlink:href='secret.svg#x'/><use xlink:href='$work/secret.svg'/><feImage href='secret.png'/>"

# --- style sheets
red_square='<rect width="8" height="8" fill="red"/>'
printf '<?xml version="1.0"?><?xml-stylesheet type="text/css" href="secret.css"?><svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">%s</svg>' "$red_square" >p.SVG
expect_file "$red" p.SVG
expect_colour "$red" <<<"<style>@import 'secret.css';</style>$red_square"
expect_colour "$red" <<<"<style>@IMPORT url(secret.css); rect { fill: blue }</style>$red_square"

# --- entities
printf '<!DOCTYPE svg [<!ENTITY e SYSTEM "%s">]><svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">%s&e;</svg>' "$work/secret.css" "$red_square" >p.SVG
"$addins/KISOIMG" read back.bmp p.SVG 2>said || grep -q 'KISOIMG: ' said
{
  printf '<!DOCTYPE svg [<!ENTITY e0 "aaaaaaaaaa">'
  for i in 1 2 3 4 5 6 7 8 9; do
    printf '<!ENTITY e%d "' "$i"
    for _ in 0 1 2 3 4 5 6 7 8 9; do printf '&e%d;' $((i - 1)); done
    printf '">'
  done
  printf ']><svg xmlns="http://www.w3.org/2000/svg" width="8" height="8"><text>&e9;</text></svg>'
} >p.SVG
expect_refusal p.SVG

# --- what stands in the document is drawn: its own parts, pixels, styles, entities
expect_colour "$red" <<<"<defs><rect id='r' width='8' height='8' fill='red'/></defs><use xlink:href='#r'/>"
expect_colour "$blue" <<<"<image width='8' height='8' xlink:href='data:image/png;base64,$pixels'/>"
expect_colour "$blue" <<<"<image width='8' height='8' xlink:href=' data:image/png;base64,${pixels:0:20} ${pixels:20}'/>"
expect_colour "$red" <<<"<linearGradient id='g'><stop stop-color='red'/></linearGradient><rect width='8' height='8' fill='url(#g)'/>"
expect_colour "$red" <<<"<style>rect { fill: red }</style><rect width='8' height='8'/>"
expect_colour "$red" <<<"<style><![CDATA[ .a > rect, rect { fill: red } ]]></style><rect width='8' height='8'/>"
expect_colour "$red" <<<"<rect width='8' height='8' style='fill:red'/>"
printf '<!DOCTYPE svg [<!ENTITY c "red">]><svg xmlns="http://www.w3.org/2000/svg" width="8" height="8"><rect width="8" height="8" fill="&c;"/></svg>' >p.SVG
expect_file "$red" p.SVG
printf '\xEF\xBB\xBF<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">%s</svg>' "$red_square" >p.SVG
expect_file "$red" p.SVG
printf '<s:svg xmlns:s="http://www.w3.org/2000/svg" width="8" height="8"><s:rect width="8" height="8" fill="red"/></s:svg>' >p.SVG
"$addins/KISOIMG" read back.bmp p.SVG 2>said || grep -q 'KISOIMG: ' said

# --- as a file of another name, and packed
printf '<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="8" height="8"><image width="8" height="8" xlink:href="secret.png"/></svg>' >lying.PNG
expect_file "$white" lying.PNG
gzip -c lying.PNG >p.SVGZ
expect_file "$white" p.SVGZ
head -c 100 p.SVGZ >cut.SVGZ
expect_refusal cut.SVGZ
{ printf '<svg width="8" height="8">'; head -c 100000000 /dev/zero | tr '\0' ' '; printf '</svg>'; } | gzip >bomb.SVGZ
expect_refusal bomb.SVGZ

# --- a few words that ask for hours of work: 100 times 100 times 100 squares
{
  printf '<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="800" height="800"><g id="u0"><rect width="800" height="800" opacity="0.5"/></g>'
  for i in 1 2 3; do
    printf '<g id="u%d">' "$i"
    for _ in $(seq 100); do printf '<use xlink:href="#u%d"/>' $((i - 1)); done
    printf '</g>'
  done
  printf '</svg>'
} >bomb.SVG
expect_refusal bomb.SVG
grep -q 'takes too long' said || fail "another reason: $(cat said)"

# --- no drawing, and a name in front
for text in '' '<svg' '<svg width="8" height="8"><rect></svg>' '<html/>' 'text'; do
  printf %s "$text" >p.SVG
  expect_refusal p.SVG
done
