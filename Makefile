# The two commands of the README, the Windows build of the core, and the benchmarks. Each
# one first installs what is missing (scripts/install-deps does nothing when all is there),
# then configures and builds with CMake and Ninja in a build folder of its own. The package
# and its check install only what they need (scripts/install-deps package).

JOBS ?= $(shell nproc 2>/dev/null || echo 2)
CMAKE_CONFIGURE = cmake -S . -G Ninja -Wno-dev

.PHONY: run test test-windows package test-package bench fuzz screenshots deps clean

deps:
	@scripts/install-deps

run: deps
	@$(CMAKE_CONFIGURE) -B build/release -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTESSARINE_TESTS=OFF >/dev/null
	@cmake --build build/release --target tessarine
	build/release/tessarine

# Tests build with warnings as errors, AddressSanitizer and UndefinedBehaviorSanitizer,
# and run headless.
test: deps
	@$(CMAKE_CONFIGURE) -B build/test -DCMAKE_BUILD_TYPE=Debug -DTESSARINE_SANITIZE=ON -DTESSARINE_WERROR=ON >/dev/null
	@cmake --build build/test
	cd build/test && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

# The Debian package in build/package (tessarine_<version>_<arch>.deb), made by CPack from
# what cmake --install puts under /usr: built with Debian's hardening flags and stripped, its
# dependencies found by dpkg-shlibdeps, its changelog dated by the commit.
PACKAGE_BUILD = build/package
export DEB_BUILD_MAINT_OPTIONS = hardening=+all

package:
	@scripts/install-deps package
	@SOURCE_DATE_EPOCH=$$(git log -1 --format=%ct 2>/dev/null || date +%s) \
	  $(CMAKE_CONFIGURE) -B $(PACKAGE_BUILD) -DCMAKE_BUILD_TYPE=Release -DTESSARINE_TESTS=OFF \
	  -DCMAKE_CXX_FLAGS="$$(dpkg-buildflags --get CPPFLAGS) $$(dpkg-buildflags --get CXXFLAGS)" \
	  -DCMAKE_EXE_LINKER_FLAGS="$$(dpkg-buildflags --get LDFLAGS)" >/dev/null
	@cmake --build $(PACKAGE_BUILD)
	@rm -f $(PACKAGE_BUILD)/tessarine_*.deb
	cd $(PACKAGE_BUILD) && cpack -G DEB

# The package checked as a person who installs it meets it: lintian, its menu entry, its
# dependencies, and the program unpacked from it started headless up to its main window.
test-package: package
	scripts/test-package $(PACKAGE_BUILD)

# The core and its tests built for Windows x86-64 with MinGW-w64 and GoogleTest from its
# sources, and run under wine64: headless, in a wine prefix of the build's own, which the
# first run makes. Debian has no Qt for MinGW, so the windows are not built here.
WINDOWS_BUILD = build/windows
WINE ?= /usr/lib/wine/wine64
WINE_ENV = WINEPREFIX=$(CURDIR)/$(WINDOWS_BUILD)/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" DISPLAY=

# Windows deletes no file that is open: a test that drops its fixture before the ROM it
# opened leaves 16 MiB in the prefix's Temp folder. The run fails if any file is left there.
WINE_LEFT = find $(WINDOWS_BUILD)/wine/drive_c/users -path '*/Temp/tessarine-*' -prune

test-windows: deps
	@$(CMAKE_CONFIGURE) --no-warn-unused-cli -B $(WINDOWS_BUILD) -DCMAKE_TOOLCHAIN_FILE=cmake/MinGW-w64.cmake -DCMAKE_BUILD_TYPE=Debug \
	  -DTESSARINE_WERROR=ON -DTESSARINE_GTEST_SOURCE=/usr/src/googletest >/dev/null
	@cmake --build $(WINDOWS_BUILD) --target tessarine_core_tests
	@test -d $(WINDOWS_BUILD)/wine || $(WINE_ENV) $(WINE) wineboot --init >$(WINDOWS_BUILD)/wineboot.log 2>&1 || true
	@$(WINE_LEFT) -exec rm -rf {} +
	$(WINE_ENV) $(WINE) $(WINDOWS_BUILD)/tests/tessarine_core_tests.exe
	@left=$$($(WINE_LEFT)); test -z "$$left" || { echo "test-windows: the tests left these files behind:"; echo "$$left"; exit 1; }

bench: deps
	@$(CMAKE_CONFIGURE) -B build/bench -DCMAKE_BUILD_TYPE=Release -DTESSARINE_TESTS=OFF -DTESSARINE_BENCH=ON >/dev/null
	@cmake --build build/bench
	QT_QPA_PLATFORM=offscreen build/bench/bench/tessarine_bench

# The fuzz targets (fuzz/) built with clang, libFuzzer, AddressSanitizer and
# UndefinedBehaviorSanitizer, each run for FUZZ_SECONDS on a corpus of its own under
# build/fuzz/corpus, starting from its regression inputs. A crash, or an input that runs
# longer than 10 s (a hang), stops the run and leaves the input in build/fuzz; it goes into
# fuzz/regressions/<target>, which make test replays.
# The last line of each run (executions, coverage) is gathered in build/fuzz/summary.txt.
FUZZ_SECONDS ?= 60
FUZZ_TARGETS = HexField GameText ListScript BrailleRecord FlyRecord EventLoad

fuzz:
	@scripts/install-deps fuzz
	@CC=clang CXX=clang++ $(CMAKE_CONFIGURE) -B build/fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTESSARINE_FUZZ=ON \
	  -DTESSARINE_SANITIZE=ON -DTESSARINE_TESTS=OFF -DTESSARINE_UI=OFF >/dev/null
	@cmake --build build/fuzz
	@rm -f build/fuzz/summary.txt
	@for t in $(FUZZ_TARGETS); do \
	  mkdir -p build/fuzz/corpus/$$t; \
	  build/fuzz/fuzz/fuzz_$$t -max_total_time=$(FUZZ_SECONDS) -timeout=10 -print_final_stats=1 -artifact_prefix=build/fuzz/$$t- \
	    build/fuzz/corpus/$$t $$(ls -d fuzz/regressions/$$t 2>/dev/null) 2>build/fuzz/$$t.log || { tail -40 build/fuzz/$$t.log; exit 1; }; \
	  echo "$$t: $$(grep -E '^#[0-9]+[[:space:]]+DONE' build/fuzz/$$t.log)" | tee -a build/fuzz/summary.txt; \
	done

# Pictures of every window on fixture ROMs, drawn under a virtual display, into docs/screenshots.
screenshots: deps
	@$(CMAKE_CONFIGURE) -B build/test -DCMAKE_BUILD_TYPE=Debug -DTESSARINE_SANITIZE=ON -DTESSARINE_WERROR=ON >/dev/null
	@cmake --build build/test --target tessarine_screenshots
	ASAN_OPTIONS=detect_leaks=0 xvfb-run -a -s "-screen 0 1280x1024x24" build/test/tools/screenshots/tessarine_screenshots docs/screenshots

clean:
	rm -rf build
