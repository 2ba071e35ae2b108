# The colour selector's pictures: the hue/saturation field, a lightness bar
# for the chosen colour and the marker arrow pointing at the colour's
# lightness. Clicking the field picks a hue and saturation; the bar is
# redrawn for the new colour.
zuttk::colorselectorimage demoField -width 180 -height 120
zuttk::colorlightnessimage demoBar #316fff -width 16 -height 120
zutkc::color rightarrow demoArrow -size 12 -color #202020

ttk::label $frame.field -image demoField
ttk::label $frame.bar -image demoBar
ttk::frame $frame.marker -width 12 -height 124
ttk::label $frame.marker.arrow -image demoArrow -padding 0
ttk::label $frame.info -width 34
grid $frame.field $frame.bar $frame.marker $frame.info -padx 3 -sticky w

proc demoPickColour {frame x y} {
    # The field's pixel under the pointer is the colour picked.
    lassign [demoField get [expr {min(max($x, 0), 179)}] [expr {min(max($y, 0), 119)}]] r g b
    set colour [format #%02x%02x%02x $r $g $b]
    zuttk::colorlightnessimage demoBar $colour
    lassign [zutkc::color rgb2hsl $colour] h s l
    place $frame.marker.arrow -x 0 -y [expr {round((1 - $l) * 119) + 2}] -anchor w
    $frame.info configure -text "$colour  hsl $h $s $l\npalette 21: [zutkc::color int2rgb 21]"
}
bind $frame.field <Button-1> [list demoPickColour $frame %x %y]
demoPickColour $frame 40 30
