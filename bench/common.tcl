# Shared helpers for the Tcl benchmarks.
package require Tk
wm withdraw .

# Microseconds per iteration of script, best of a few rounds.
proc usec {script {n 2000}} {
    uplevel 1 $script   ;# warm up
    set best Inf
    for {set r 0} {$r < 5} {incr r} {
        set t [lindex [uplevel 1 [list time $script $n]] 0]
        if {$t < $best} { set best $t }
    }
    return $best
}

proc report {label ours theirs {theirsLabel reference}} {
    puts [format "%-46s %10.2f us  vs %-26s %10.2f us  ratio %.2f" \
        $label $ours $theirsLabel $theirs [expr {$ours / $theirs}]]
}
