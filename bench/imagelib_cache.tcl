# zutkc::image cache: a hit against the idiomatic Tcl cache (an array
# lookup), and a miss (file load) against image create photo -file.
source [file join [file dirname [info script]] common.tcl]
load $::env(TCU_LIB)

namespace eval zutk::common { proc isdarktheme {} { return 0 } }
# The toolkit keeps a map with a few redirections; none is for open-16.png.
namespace eval zutk::imagemap { variable map; array set map {old-16.png new-16.png} }

set dir [file join [pwd] imagelib-bench-[pid]]
file mkdir $dir
set p [image create photo -width 16 -height 16]
$p put #316fff -to 0 0 16 16
$p put #808080 -to 4 4 12 12
$p write [file join $dir open-16.png] -format png
image delete $p
zutkc::image path $dir

# What a script would write without the library.
proc tclcache {name} {
    global tclcache
    if {[info exists tclcache($name)]} { return $tclcache($name) }
    set tclcache($name) [image create photo $name -file [file join $::dir $name]]
}

# Best of alternating rounds, so that load from elsewhere on the machine
# hits both sides alike.
proc compare {label ours theirs theirsLabel n} {
    set a Inf
    set b Inf
    for {set round 0} {$round < 4} {incr round} {
        set a [expr {min($a, [uplevel 1 [list usec $ours $n]])}]
        set b [expr {min($b, [uplevel 1 [list usec $theirs $n]])}]
    }
    report $label $a $b $theirsLabel
}

zutkc::image cache open-16.png
tclcache open-16.png
compare "hit: zutkc::image cache open-16.png" \
    {zutkc::image cache open-16.png} {tclcache open-16.png} "array lookup proc" 20000

set ::dark 1
proc zutk::common::isdarktheme {} { return $::dark }
compare "hit, dark theme (looks for open-16@d.png)" \
    {zutkc::image cache open-16.png} {tclcache open-16.png} "array lookup proc" 20000
set ::dark 0

image delete open-16.png
set load {image delete [image create photo x -file [file join $dir open-16.png]]}
compare "miss: zutkc::image cache + image delete" \
    {image delete [zutkc::image cache open-16.png]} $load "image create photo -file" 2000
compare "miss: swatch color#12ab34-16.png + delete" \
    {image delete [zutkc::image cache color#12ab34-16.png]} $load "image create photo -file" 2000

file delete -force $dir
exit
