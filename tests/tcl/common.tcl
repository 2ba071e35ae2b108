# Shared set-up for the Tcl-level tests: Tk, tcltest, the library under test
# and the photo probe. Each test file sources this and ends with [finish].
package require Tk
package require tcltest 2
namespace import ::tcltest::*
wm withdraw .

set ::tcu_lib $::env(TCU_LIB)
set ::tcu_probe $::env(TCU_PROBE)
load $::tcu_probe Photoprobe
# A file that must prepare the interpreter first sets ::tcu_defer_load.
if {![info exists ::tcu_defer_load]} { load $::tcu_lib }

set ::fixtures [file join [file dirname [info script]] .. fixtures]
set ::scratch [file normalize [makeDirectory scratch]]

# Writes a w x h PNG of the given RGBA bytes and returns its path.
proc make_png {name w h bytes} {
    set p [image create photo]
    photoprobe::put $p $w $h $bytes
    set path [file join $::scratch $name]
    file mkdir [file dirname $path]
    $p write $path -format png
    image delete $p
    return $path
}

# A w x h list of one repeated RGBA pixel.
proc solid {w h rgba} {
    set out {}
    for {set i 0} {$i < $w * $h} {incr i} { lappend out {*}$rgba }
    return $out
}

proc finish {} {
    set failed $::tcltest::numTests(Failed)
    # With Tk present tcltest would exit 0 itself; keep the exit code ours.
    testConstraint interactive 1
    cleanupTests
    exit [expr {$failed > 0}]
}
