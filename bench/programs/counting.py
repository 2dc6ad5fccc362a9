import sys


def main():
    count = int(sys.argv[1])
    sum = 0
    for i in range(1, count + 1):
        sum = sum + i
    print(sum)


main()
