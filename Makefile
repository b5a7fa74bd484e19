# Brinto: `make run` starts the calculator, `make test` builds and runs every test.
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=

.PHONY: all deps build run test test-release test-sanitize bench clean

all: build

deps:
	@scripts/install-deps.sh

build: deps
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build build -j $(JOBS)

run: build
	./build/brinto-cli

test: deps test-release test-sanitize

test-release:
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBRINTO_WERROR=ON $(CMAKE_FLAGS)
	cmake --build build -j $(JOBS)
	ctest --test-dir build --output-on-failure -j $(JOBS)

test-sanitize:
	cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DBRINTO_WERROR=ON -DBRINTO_SANITIZE=ON $(CMAKE_FLAGS)
	cmake --build build-asan -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
	  ctest --test-dir build-asan --output-on-failure -j $(JOBS)

bench: deps
	cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DBRINTO_BENCH=ON -DBRINTO_TESTS=OFF $(CMAKE_FLAGS)
	cmake --build build-bench -j $(JOBS)
	./build-bench/brinto_bench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true

clean:
	rm -rf build build-asan build-bench
