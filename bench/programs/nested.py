import sys


def main():
    count = int(sys.argv[1])
    k = low = high = few = two = others = 0
    for i in range(1, count + 1):
        for j in range(1, 101):
            k = k + 1
            if k == 5:
                k = 0
            if j <= 50:
                low = low + 1
            else:
                high = high + j
            match k:
                case 0 | 1:
                    few = few + 1
                case 2:
                    two = two + i
                case _:
                    others = others + j
    print(low, high, few, two, others)


main()
