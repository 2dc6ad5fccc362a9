local count = tonumber(arg[1])
local total = 0
local function multiply(left, right)
  total = total + left * right
end
for i = 1, count do
  multiply(i, 2)
end
print(total)
