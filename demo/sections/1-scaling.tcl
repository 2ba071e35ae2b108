# The image hook: every new photo passes through it. With scaleimages=1 and a
# `tk scaling` of 2 or more, new photos are enlarged by the whole factor.
set p [image create photo -width 16 -height 16]
$p put #316fff -to 0 0 16 16
$p put #f8ce26 -to 4 4 12 12
ttk::label $frame.img -image $p -compound left \
    -text "tk scaling [format %.2f [tk scaling]], scaleimages=[expr {[info exists ::env(scaleimages)] ? $::env(scaleimages) : {unset}}]"
ttk::combobox $frame.combo -values {lumen default} -width 12
$frame.combo set lumen
pack $frame.img $frame.combo -side left -padx 4
