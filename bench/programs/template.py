import sys


def main():
    count = int(sys.argv[1])
    for row in range(1, count + 1):
        print(f"line {row} of the table")


main()
