import sys

total = 0


def multiply(left, right):
    global total
    total = total + left * right


def main():
    count = int(sys.argv[1])
    for i in range(1, count + 1):
        multiply(i, 2)
    print(total)


main()
