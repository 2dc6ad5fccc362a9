-- text = text .. "..." copies the text each time: this is how a long one is built here.
local count = tonumber(arg[1])
local parts = {}
for i = 1, count do
  parts[#parts + 1] = "twenty characters..."
end
print(table.concat(parts))
