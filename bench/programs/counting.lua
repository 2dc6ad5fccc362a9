local count = tonumber(arg[1])
local sum = 0
for i = 1, count do
  sum = sum + i
end
print(sum)
