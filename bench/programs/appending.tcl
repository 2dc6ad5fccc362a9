set count [lindex $argv 0]
set text ""
for {set i 1} {$i <= $count} {incr i} {
  append text "twenty characters..."
}
puts $text
