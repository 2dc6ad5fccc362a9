set count [lindex $argv 0]
set k 0
set low 0
set high 0
set few 0
set two 0
set others 0
for {set i 1} {$i <= $count} {incr i} {
  for {set j 1} {$j <= 100} {incr j} {
    incr k
    if {$k == 5} {
      set k 0
    }
    if {$j <= 50} {
      incr low
    } else {
      incr high $j
    }
    switch $k {
      0 - 1 { incr few }
      2 { incr two $i }
      default { incr others $j }
    }
  }
}
puts "$low $high $few $two $others"
