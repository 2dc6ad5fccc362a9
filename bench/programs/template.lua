local count = tonumber(arg[1])
for row = 1, count do
  io.write("line ", row, " of the table\n")
end
