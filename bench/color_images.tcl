# The colour selector's pictures against the ways a script could get the same
# photo: pure Tcl maths with `$photo put`, and the floors of putting an already
# computed block (Tk's list-of-rows put, photoprobe::put, and Tk's C-level
# `copy`, also with the compositing rule set that the commands use) plus the
# plain C++ loop of bench/color_loop.cpp.
source [file join [file dirname [info script]] common.tcl]
load $env(TCU_LIB)
load $env(TCU_PROBE) Photoprobe

# Pure Tcl: the field's HSL maths with the per-column choices made once and
# only p and q per row (double precision: a byte may differ now and then).
proc tclField {photo w h} {
    set stepX [expr {1.0 / ($w - 1)}]
    set stepY [expr {1.0 / ($h - 1)}]
    set plans {}
    for {set x 0} {$x < $w} {incr x} {
        set hue [expr {$x * $stepX}]
        foreach t [list [expr {$hue + 0.33334}] $hue [expr {$hue - 0.33334}]] {
            if {$t < 0} { set t [expr {$t + 1}] } elseif {$t > 1} { set t [expr {$t - 1}] }
            if {$t < 0.16667} { lappend plans 0 $t } elseif {$t < 0.5} { lappend plans 1 0 } \
                elseif {$t < 0.6667} { lappend plans 0 [expr {0.66667 - $t}] } else { lappend plans 2 0 }
        }
    }
    set rows {}
    for {set y [expr {$h - 1}]} {$y >= 0} {incr y -1} {
        set s [expr {$y * $stepY}]
        if {$s == 0} { lappend rows [lrepeat $w #7f7f7f]; continue }
        set q [expr {($s + 1) * 0.5}]
        set p [expr {1.0 - $q}]
        set row {}
        foreach {k1 f1 k2 f2 k3 f3} $plans {
            lappend row [format #%02x%02x%02x \
                [expr {int(255 * min(1.0, $k1 == 0 ? ($q - $p) * $f1 * 6 + $p : $k1 == 1 ? $q : $p))}] \
                [expr {int(255 * min(1.0, $k2 == 0 ? ($q - $p) * $f2 * 6 + $p : $k2 == 1 ? $q : $p))}] \
                [expr {int(255 * min(1.0, $k3 == 0 ? ($q - $p) * $f3 * 6 + $p : $k3 == 1 ? $q : $p))}]]
        }
        lappend rows $row
    }
    $photo put $rows
}

# Pure Tcl: the bar, one HSL conversion per row, the row repeated.
proc tclHueToChannel {p q t} {
    if {$t < 0} { set t [expr {$t + 1}] } elseif {$t > 1} { set t [expr {$t - 1}] }
    if {$t < 0.16667} { return [expr {($q - $p) * $t * 6 + $p}] }
    if {$t < 0.5} { return $q }
    if {$t < 0.6667} { return [expr {($q - $p) * (0.66667 - $t) * 6 + $p}] }
    return $p
}
proc tclBar {photo w h hue sat} {
    set stepY [expr {1.0 / ($h - 1)}]
    set rows {}
    for {set y [expr {$h - 1}]} {$y >= 0} {incr y -1} {
        set l [expr {$y * $stepY}]
        if {$sat == 0} {
            set rgb [list $l $l $l]
        } else {
            set q [expr {$l <= 0.5 ? ($sat + 1) * $l : $l + $sat - $l * $sat}]
            set p [expr {2 * $l - $q}]
            set rgb [list [tclHueToChannel $p $q [expr {$hue + 0.33334}]] [tclHueToChannel $p $q $hue] \
                [tclHueToChannel $p $q [expr {$hue - 0.33334}]]]
        }
        set c #
        foreach v $rgb { append c [format %02x [expr {int(255 * max(0.0, min(1.0, $v)))}]] }
        lappend rows [lrepeat $w $c]
    }
    $photo put $rows
}

# The plain C++ loop, from its own program next to this build.
set loop [file join [file dirname $env(TCU_LIB)] bench color_loop]
set loopUs [dict create]
foreach line [split [exec $loop] \n] {
    lassign $line name w h us
    dict set loopUs $name $us
}

# Pixels in which two list-of-rows pictures differ.
proc differing {a b} {
    set n 0
    foreach ra $a rb $b { foreach pa $ra pb $rb { if {$pa ne $pb} { incr n } } }
    return $n
}

# --- field, 240 x 240: each round makes the photo afresh (the command leaves
# an existing photo alone).
zuttk::colorselectorimage f
set fieldBytes [photoprobe::get f]
set fieldRows [f data]
image create photo g
set field [usec { image delete f; zuttk::colorselectorimage f } 300]
set tclF [usec { image delete g; image create photo g; tclField g 240 240 } 3]
set tclDiff [differing [g data] $fieldRows]
set rowsPut [usec { image delete g; image create photo g; g put $fieldRows } 20]
set probePut [usec { image delete g; image create photo g; photoprobe::put g 240 240 [lindex $fieldBytes 2] } 20]
set copyPut [usec { image delete g; image create photo g; g copy f } 300]
set copySetPut [usec { image delete g; image create photo g; g copy f -compositingrule set } 300]
set fieldLoop [dict get $loopUs field]

puts "field 240 x 240 (pure Tcl, in double precision, differs in $tclDiff of 57600 pixels)"
report "  zuttk::colorselectorimage" $field $tclF "pure Tcl + put"
puts [format "    %.0fx faster than pure Tcl (aim: 200x or more)" [expr {$tclF / $field}]]
report "  zuttk::colorselectorimage" $field [expr {$fieldLoop + $copyPut}] "C++ loop + create + copy"
report "  zuttk::colorselectorimage" $field [expr {$fieldLoop + $copySetPut}] "C++ loop + create + copy set"
report "  zuttk::colorselectorimage" $field [expr {$fieldLoop + $probePut}] "C++ loop + photoprobe::put"
report "  zuttk::colorselectorimage" $field [expr {$fieldLoop + $rowsPut}] "C++ loop + \$photo put rows"
puts "    aim: ratio 1.5 or less against the loop plus the block put"
puts [format "  parts: C++ loop %.1f us (library's own pixel function %.1f us), create + copy %.1f us" \
    $fieldLoop [dict get $loopUs library-field] $copyPut]

# --- bar, 20 x 240: an existing photo is redrawn in place.
zuttk::colorlightnessimage bar #316fff -width 20 -height 240
set barBytes [photoprobe::get bar]
set barRows [bar data]
image create photo h -width 20 -height 240
lassign [zutkc::color rgb2hsl #316fff] hue sat
set barUs [usec { zuttk::colorlightnessimage bar #316fff } 3000]
set tclB [usec { tclBar h 20 240 $hue $sat } 50]
set tclBarDiff [differing [h data] $barRows]
set rowsPutB [usec { h put $barRows } 200]
set probePutB [usec { photoprobe::put h 20 240 [lindex $barBytes 2] } 200]
set copyPutB [usec { h copy bar } 3000]
set copySetPutB [usec { h copy bar -compositingrule set } 3000]

puts "bar 20 x 240 (pure Tcl, in double precision, differs in $tclBarDiff of 4800 pixels)"
report "  zuttk::colorlightnessimage" $barUs $tclB "pure Tcl + put"
report "  zuttk::colorlightnessimage" $barUs $copyPutB "copy of the same block"
report "  zuttk::colorlightnessimage" $barUs $copySetPutB "copy, compositing rule set"
report "  zuttk::colorlightnessimage" $barUs $probePutB "photoprobe::put"
report "  zuttk::colorlightnessimage" $barUs $rowsPutB "\$photo put rows"
puts "    aim: ratio 3 or less against the block put"
puts [format "  parts: C++ loop %.1f us (library's own pixel function %.1f us)" \
    [dict get $loopUs bar] [dict get $loopUs library-bar]]
exit
