break Look
run
up
echo --\n
print integers
print decimals
print dates
print spans
print bytes
print element
print pointers
set print array on
print variants
print failure
