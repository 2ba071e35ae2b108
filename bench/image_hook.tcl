# Cost of the `image` hook: creation with scaling off against plain Tk, and
# scaled creation against Tk's own zoom of the same picture.
source [file join [file dirname [info script]] common.tcl]

proc make_png {side} {
    set p [image create photo -width $side -height $side]
    for {set y 0} {$y < $side} {incr y 4} {
        $p put [format #%02x%02x40 [expr {$y % 256}] [expr {(255 - $y) % 256}]] -to 0 $y $side [expr {$y + 4}]
    }
    set f [file join /tmp tcu_bench_$side.png]
    $p write $f -format png
    image delete $p
    return $f
}
set f16 [make_png 16]
set f256 [make_png 256]

tk scaling 2.5
load $env(TCU_LIB)
unset -nocomplain env(scaleimages)
# Plain Tk: a second interpreter of the same process, whose `image` is Tk's own.
interp create plain
load {} Tk plain
plain eval [list set f16 $f16]
plain eval {wm withdraw .}
set script { image delete [image create photo -file $f16] }
set plainBest Inf
set hookedBest Inf
for {set r 0} {$r < 5} {incr r} {
    set t [lindex [plain eval [list time $script 5000]] 0]
    if {$t < $plainBest} { set plainBest $t }
    set t [lindex [time $script 5000] 0]
    if {$t < $hookedBest} { set hookedBest $t }
}
set plain $plainBest
set hooked $hookedBest
report "create 16x16 png, hook loaded, scaling off" $hooked $plain "plain Tk"

set env(scaleimages) 1
foreach {f n} [list $f16 3000 $f256 100] {
    set env(scaleimages) 1
    set ours [usec { image delete [image create photo -file $f] } $n]
    unset env(scaleimages)
    set tk [usec {
        set s [image create photo -file $f]
        set d [image create photo]
        $d copy $s -zoom 2 2
        image delete $s $d
    } $n]
    set side [expr {$f eq $f16 ? 16 : 256}]
    report "create ${side}x${side} png scaled x2 by the hook" $ours $tk "Tk create + copy -zoom 2 2"
}
exit
