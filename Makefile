# The commands of this project. `make run` and `make test` install what is missing (Debian 12) and build first.
PROJECT ?= samples/stockroom/Stockroom.vbp
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

packages = scripts/install-packages scripts/packages.txt
program = build/corvane

.PHONY: all run test addin addin-test addin-test-32 bench screenshots format format-check lint sanitize fuzz
.PHONY: fuzz-quick packages clean

all: $(program)

packages:
	@$(packages)

# Building is CMake's business: it is asked each time.
.PHONY: $(program)
$(program): packages
	@cmake --preset release -Wno-dev --log-level=WARNING
	@cmake --build build -j $(JOBS) --target corvane corvane-desk

run: $(program)
	@scripts/run $(program) "$(PROJECT)"

test: packages
	cmake --preset release -Wno-dev --log-level=WARNING
	cmake --build build -j $(JOBS)
	scripts/tests build

# The library for Visual Basic, 32 bit (the product) and 64 bit, and the zip for its users.
addin: packages
	@scripts/install-packages scripts/packages-addin.txt
	cmake --preset addin32 -Wno-dev --log-level=WARNING
	cmake --build build/addin32 -j $(JOBS) --target corvane_dll
	cmake --preset addin64 -Wno-dev --log-level=WARNING
	cmake --build build/addin64 -j $(JOBS) --target corvane_dll
	scripts/check-library build/addin32/corvane.dll
	scripts/check-library build/addin64/corvane.dll
	scripts/addin-zip build/addin32 build/addin64 build

# The Windows tests under Wine: those of 64 bit, and those of 32 bit where this machine has a Wine for them.
addin-test: addin
	@scripts/install-packages scripts/packages-addin-test.txt
	cmake --build build/addin64 -j $(JOBS)
	scripts/addin-tests build/addin64 build/wine64
	scripts/test-install build/windows build/addin64 build/wine64 --64
	@if wine=$$(scripts/wine-32); then \
	  cmake --build build/addin32 -j $(JOBS) && \
	  WINE=$$wine WINEARCH=win32 scripts/addin-tests build/addin32 build/wine32 && \
	  WINE=$$wine WINEARCH=win32 scripts/test-install build/windows build/addin32 build/wine32; \
	else \
	  echo "The 32-bit tests were not run: this machine has no 32-bit Wine ('make addin-test-32' brings one)."; \
	fi

# The same for 32 bit in a 32-bit Debian beside the build folder; needs root, and 1.7 GB that are kept for the next time.
addin-test-32: addin
	@scripts/install-packages scripts/packages-addin-test-32.txt
	cmake --build build/addin32 -j $(JOBS)
	scripts/addin-tests-32 build/addin32 build/debian-i386

bench: packages
	@scripts/install-packages scripts/packages-bench.txt
	cmake --preset bench -Wno-dev --log-level=WARNING
	cmake --build build/bench -j $(JOBS)
	bench/run build/bench

# Every window; DOCS=1 also puts the explorer's picture into the documents.
screenshots: $(program)
	scripts/screenshots $(program) build/screenshots $(if $(DOCS),docs/images/explorer.png)

# The add-in's windows as they are in Visual Basic, beside those; DOCS=1 as well.
.PHONY: screenshots-win32
screenshots-win32: packages
	@scripts/install-packages scripts/packages-addin.txt scripts/packages-addin-test.txt
	cmake --preset addin64 -Wno-dev --log-level=WARNING
	cmake --build build/addin64 -j $(JOBS) --target corvane_win32_pictures_tests
	scripts/screenshots-win32 build/addin64/corvane_win32_pictures_tests.exe build/screenshots \
	  $(if $(DOCS),docs/images/explorer-windows.png)

# The whole suite under the address and undefined behaviour sanitizers.
sanitize: packages
	cmake --preset sanitize -Wno-dev --log-level=WARNING
	cmake --build build/sanitize -j $(JOBS)
	LSAN_OPTIONS="suppressions=$(CURDIR)/scripts/library-leaks.txt:print_suppressions=0" scripts/tests build/sanitize

# Each fuzz target for a minute; `fuzz-quick` the same inputs each time, for some seconds.
FUZZ_SECONDS ?= 60
fuzz-quick: FUZZ_SECONDS = quick
fuzz fuzz-quick: packages
	@scripts/install-packages scripts/packages-clang.txt
	cmake --preset fuzz -Wno-dev --log-level=WARNING
	cmake --build build/fuzz -j $(JOBS) --target fuzz_targets
	scripts/fuzz build/fuzz $(FUZZ_SECONDS)

format:
	@scripts/install-packages scripts/packages-clang.txt
	scripts/format

format-check:
	@scripts/install-packages scripts/packages-clang.txt
	scripts/format --check

lint: packages
	@scripts/install-packages scripts/packages-clang.txt
	cmake --preset dev -Wno-dev --log-level=WARNING
	scripts/lint build/dev

clean:
	rm -rf build
