# The image library: zutkc::image cache turns picture names into photos.
# Swatches are synthesised from their names, six-frame strips are split into
# state photos whose accents take the glow colour, -state disabled gives a
# half-transparent copy, and in the dark theme grey icons are inverted.
# The pictures are drawn here and written to a scratch directory first.

# The script half that the command consults.
namespace eval ::zutk::common {}
namespace eval ::zutk::imagemap { variable map }
set ::demoDark 0
proc ::zutk::common::isdarktheme {} { return $::demoDark }
proc ::zutk::settings {what name} { return "#e0409a" }

set demoDir [file join [expr {[info exists ::env(TMPDIR)] ? $::env(TMPDIR) : "/tmp"}] zutk-demo-[pid]]
file mkdir $demoDir

# Draws with a list of {colour x1 y1 x2 y2} rectangles and writes a PNG.
proc demoPicture {file width height rects} {
    set p [image create photo -width $width -height $height]
    foreach r $rects { $p put [lindex $r 0] -to {*}[lrange $r 1 end] }
    $p write $file -format png
    image delete $p
}
set document {{#404040 3 1 13 15} {#f0f0f0 4 2 12 14} {#808080 6 5 11 6} {#808080 6 8 11 9} {#808080 6 11 10 12}}
set flag {{#202020 3 1 4 15} {#316fff 4 2 13 8} {#f8ce26 6 4 10 6}}
set strip {}
foreach k {0 1 2 3 4 5} {
    set x [expr {16 * $k}]
    set fill [expr {$k in {2 3} ? "#e4e4e4" : "#c8c8c8"}]
    lappend strip [list #505050 [expr {$x + 1}] 1 [expr {$x + 15}] 15] \
        [list $fill [expr {$x + 2}] 2 [expr {$x + 14}] 14] \
        [list #f8ce26 [expr {$x + 3}] 11 [expr {$x + 13}] 13]
}
foreach {name w pixels} [list document-16.png 16 $document flag-16.png 16 $flag \
        button-16.png 96 $strip dark-document-16.png 16 $document dark-flag-16.png 16 $flag \
        invalidImage-24.png 24 {{#c03030 0 0 24 24} {#ffffff 4 10 20 14}}] {
    demoPicture [file join $demoDir $name] $w [expr {$name eq "invalidImage-24.png" ? 24 : 16}] $pixels
}
zutkc::image path $demoDir
zutkc::image cache invalidImage-24.png

# One labelled picture per cell.
proc demoCell {parent row column photo text} {
    set w $parent.c${row}_$column
    ttk::label $w -image $photo -text $text -compound top -padding 2
    grid $w -row $row -column $column -padx 3 -pady 2
}

ttk::label $frame.h0 -text "swatches"
grid $frame.h0 -row 0 -column 0 -sticky w
set column 1
foreach name {color#12ab34-24.png color12-16.png color20-16.png color-16.png} {
    demoCell $frame 0 $column [zutkc::image cache $name] $name
    incr column
}

ttk::label $frame.h1 -text "strip states"
grid $frame.h1 -row 1 -column 0 -sticky w
set column 1
foreach {state photo} [zutkc::image cache button-16.png] {
    demoCell $frame 1 $column $photo $state
    incr column
}
ttk::label $frame.h2 -text "swatch strip"
grid $frame.h2 -row 2 -column 0 -sticky w
set column 1
foreach {state photo} [zutkc::image cache color#316fffStrip-16.png] {
    demoCell $frame 2 $column $photo $state
    incr column
}

ttk::label $frame.h3 -text "plain / disabled"
grid $frame.h3 -row 3 -column 0 -sticky w
set column 1
foreach request {{document-16.png} {document-16.png -state disabled} {flag-16.png}
        {flag-16.png -state disabled} {color40-16.png -state disabled} {missing-16.png}} {
    demoCell $frame 3 $column [zutkc::image cache {*}$request] [lindex $request end]
    incr column
}

# Photos are recoloured once, when made in the dark theme, so the dark row
# uses pictures of their own names.
set ::demoDark 1
tk::frame $frame.dark -background #2b2b2b
grid $frame.dark -row 4 -column 0 -columnspan 7 -sticky we -pady 4
label $frame.dark.h -text "dark theme" -background #2b2b2b -foreground #e0e0e0
grid $frame.dark.h -row 0 -column 0 -sticky w -padx 4
set column 1
foreach request {{dark-document-16.png} {dark-document-16.png -state disabled} {dark-flag-16.png}
        {color12-16.png}} {
    set photo [zutkc::image cache {*}$request]
    label $frame.dark.c$column -image $photo -text [lindex $request end] -compound top \
        -background #2b2b2b -foreground #e0e0e0
    grid $frame.dark.c$column -row 0 -column $column -padx 3 -pady 2
    incr column
}
set ::demoDark 0

file delete -force $demoDir
