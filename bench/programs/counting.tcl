set count [lindex $argv 0]
set sum 0
for {set i 1} {$i <= $count} {incr i} {
  set sum [expr {$sum + $i}]
}
puts $sum
