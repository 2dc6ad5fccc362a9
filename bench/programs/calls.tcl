set count [lindex $argv 0]
set total 0
proc multiply {left right} {
  upvar 1 total total
  incr total [expr {$left * $right}]
}
for {set i 1} {$i <= $count} {incr i} {
  multiply $i 2
}
puts $total
