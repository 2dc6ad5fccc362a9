# The commands of this project. `make run` and `make test` install what is missing (Debian 12) and build first.
PROJECT ?= samples/stockroom/Stockroom.vbp
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

packages = scripts/install-packages scripts/packages.txt
program = build/corvane

.PHONY: all run test bench screenshots format format-check lint sanitize fuzz fuzz-quick packages clean

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

bench: packages
	@scripts/install-packages scripts/packages-bench.txt
	cmake --preset bench -Wno-dev --log-level=WARNING
	cmake --build build/bench -j $(JOBS)
	bench/run build/bench

# Every window; DOCS=1 also puts the explorer's picture into the documents.
screenshots: $(program)
	scripts/screenshots $(program) build/screenshots $(if $(DOCS),docs/images/explorer.png)

# The whole suite under the address and undefined behaviour sanitizers.
sanitize: packages
	cmake --preset sanitize -Wno-dev --log-level=WARNING
	cmake --build build/sanitize -j $(JOBS)
	scripts/tests build/sanitize

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
	cmake --build build/dev -j $(JOBS) --target autogen 2>/dev/null || true
	scripts/lint build/dev

clean:
	rm -rf build
