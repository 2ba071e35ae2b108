# Shared set-up for the Tcl-level tests: Tk, tcltest, the library under test
# and the photo probe. Each test file sources this and ends with [finish].
package require Tk
package require tcltest 2
namespace import ::tcltest::*
wm withdraw .

set ::tcu_lib $::env(TCU_LIB)
load $::env(TCU_PROBE) Photoprobe
# A file that must prepare the interpreter first sets ::tcu_defer_load.
if {![info exists ::tcu_defer_load]} { load $::tcu_lib }

set ::scratch [file normalize [makeDirectory scratch]]

# Writes a w x h PNG of the given RGBA bytes and returns its path.
proc make_png {name w h bytes} {
    set p [image create photo]
    photoprobe::put $p $w $h $bytes
    file mkdir [file dirname [set path [file join $::scratch $name]]]
    $p write $path -format png
    image delete $p
    return $path
}

proc size {photo} { list [image width $photo] [image height $photo] }
# Pixel (x, y) of a photo: {r g b a}.
proc px {photo x y} {
    lassign [photoprobe::get $photo] w h bytes
    set at [expr {($y * $w + $x) * 4}]
    lrange $bytes $at $at+3
}

proc finish {} {
    set failed $::tcltest::numTests(Failed)
    # With Tk present tcltest would exit 0 itself; keep the exit code ours.
    testConstraint interactive 1
    cleanupTests
    exit [expr {$failed > 0}]
}
