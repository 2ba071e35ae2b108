# Shows what tclcoreutils offers. Run with wish (or tclsh):
#   wish demo/demo.tcl ?path/to/libtclcoreutils.so? ?screenshot.png?
# With a screenshot path it draws once, saves the window as PNG and exits.
package require Tk

set here [file dirname [file normalize [info script]]]
set lib [lindex $argv 0]
if {$lib eq ""} { set lib [file join $here .. build libtclcoreutils.so] }
set shot [lindex $argv 1]

load [file normalize $lib]
ttk::style theme use lumen
wm title . "tclcoreutils demo"
ttk::frame .f -padding 8
pack .f -fill both -expand 1

# Every file in sections/ adds one labelled frame; it gets its frame as $frame.
set row 0
foreach section [lsort [glob -nocomplain -directory [file join $here sections] *.tcl]] {
    set title [string map {- " "} [regsub {^[0-9]+-} [file rootname [file tail $section]] {}]]
    set frame [ttk::labelframe .f.s$row -text $title -padding 6]
    grid $frame -row $row -column 0 -sticky nsew -pady 4
    source $section
    incr row
}

if {$shot ne ""} {
    update
    after 200
    update
    # ImageMagick's import grabs the window as the X server shows it.
    exec import -window [winfo id .] $shot
    exit
}
