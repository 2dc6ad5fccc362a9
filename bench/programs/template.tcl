set count [lindex $argv 0]
for {set row 1} {$row <= $count} {incr row} {
  puts "line $row of the table"
}
