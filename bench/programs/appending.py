import sys


def main():
    count = int(sys.argv[1])
    text = ""
    for i in range(1, count + 1):
        text += "twenty characters..."
    print(text)


main()
