# Brinto: `make run` starts the calculator (`make run-cli` the headless one), `make test` builds and runs every test.
JOBS ?= $(shell nproc)
# `make install`: where to (PREFIX), and a staging root (DESTDIR) for packagers.
PREFIX ?= /usr/local
DESTDIR ?=
CMAKE_FLAGS ?=
# Fuzzing: seconds per target for `make fuzz`, targets run at once, and clang's packages.
FUZZ_SECONDS ?= 60
FUZZ_JOBS ?= 2
FUZZ_CXX ?= clang++-14
FUZZ_PACKAGES = clang-14 libclang-rt-14-dev libfuzzer-14-dev
FUZZ_CMAKE = cmake -S . -B build-fuzz -DCMAKE_CXX_COMPILER=$(FUZZ_CXX) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	-DBRINTO_TESTS=OFF -DBRINTO_APP=OFF -DBRINTO_FUZZ=ON $(CMAKE_FLAGS)

.PHONY: all deps build install uninstall package run run-cli guide translations screenshots test test-release test-sanitize bench clean fuzz-deps fuzz-build test-fuzz fuzz fuzz-coverage

all: build

deps:
	@scripts/install-deps.sh

build: deps
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build build -j $(JOBS)

# The programs, the user guide, the man pages, brinto-cli's shell completions, and the desktop
# entry, metadata and icons.
install: deps
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build build -j $(JOBS) --target brinto brinto-cli completions
	DESTDIR="$(DESTDIR)" cmake --install build --prefix "$(PREFIX)"

# Removes what the last `make install` wrote (build/install_manifest.txt lists it under the prefix;
# give the same DESTDIR).
uninstall:
	@test -f build/install_manifest.txt || { echo "build/install_manifest.txt: nothing installed from this build"; exit 1; }
	sed 's|^|$(DESTDIR)|' build/install_manifest.txt | xargs -d '\n' rm -fv
	-rmdir --ignore-fail-on-non-empty "$(DESTDIR)$(PREFIX)/share/doc/brinto"

# A Debian package in build/, built by debhelper from debian/ as Debian builds it (shared libraries,
# compressed manual pages), in a copy of the sources under build/package so the tree stays clean;
# then checked with lintian.
package: deps
	rm -rf build/package && mkdir -p build/package/brinto
	tar -c --exclude=./.git --exclude='./build*' --exclude=./fuzz/out . | tar -x -C build/package/brinto
	cd build/package/brinto && DEB_BUILD_OPTIONS="parallel=$(JOBS)" dpkg-buildpackage -us -uc -b
	lintian --fail-on error build/package/brinto_*.deb
	mv build/package/brinto_*.deb build/

# Only the program and what it links, not the tests.
run: deps
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build build -j $(JOBS) --target brinto
	./build/brinto

run-cli: deps
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build build -j $(JOBS) --target brinto-cli
	./build/brinto-cli

# Rewrites the generated sections of the user guide (keyboards, keyboard keys, constants, appearance).
guide: deps
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build build -j $(JOBS) --target guide

# Refreshes translations/*.ts from the sources (the session's texts through scripts/session-texts.py):
# new texts come in unfinished, texts gone go out.
translations: deps
	python3 scripts/session-texts.py
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build build -j $(JOBS) --target update_translations

# Redraws docs/screenshots/ : every window of the program on a calculator with sample values.
screenshots: deps
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build build -j $(JOBS) --target brinto
	QT_QPA_PLATFORM=offscreen ./build/brinto --screenshot docs/screenshots

test: deps test-release test-sanitize test-fuzz

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
	cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DBRINTO_BENCH=ON -DBRINTO_TESTS=OFF -DBRINTO_APP=ON $(CMAKE_FLAGS)
	cmake --build build-bench -j $(JOBS)
	./build-bench/brinto_bench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true
	./build-bench/app_bench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true

# Every fuzz target for 20 s on its seeds plus new inputs: a regression check, not a search.
test-fuzz: fuzz-build
	FUZZ_JOBS=$(FUZZ_JOBS) scripts/fuzz.sh 20 build-fuzz/run

# A longer search; the corpus it grows stays in fuzz/out/ (not in git) for the next run.
fuzz: fuzz-build
	FUZZ_JOBS=$(FUZZ_JOBS) scripts/fuzz.sh $(FUZZ_SECONDS) fuzz/out

fuzz-deps:
	@scripts/install-deps.sh $(FUZZ_PACKAGES)

fuzz-build: fuzz-deps
	$(FUZZ_CMAKE)
	cmake --build build-fuzz -j $(JOBS) --target fuzz_targets

# Line coverage of the sources reached by the fuzzers' corpora (seeds and fuzz/out/).
fuzz-coverage:
	@scripts/install-deps.sh $(FUZZ_PACKAGES) llvm-14
	scripts/fuzz-coverage.sh

clean:
	rm -rf build build-asan build-bench build-fuzz build-fuzz-cov
