local count = tonumber(arg[1])
local k, low, high, few, two, others = 0, 0, 0, 0, 0, 0
for i = 1, count do
  for j = 1, 100 do
    k = k + 1
    if k == 5 then
      k = 0
    end
    if j <= 50 then
      low = low + 1
    else
      high = high + j
    end
    if k == 0 or k == 1 then
      few = few + 1
    elseif k == 2 then
      two = two + i
    else
      others = others + j
    end
  end
end
print(low .. " " .. high .. " " .. few .. " " .. two .. " " .. others)
