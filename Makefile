# The two commands of the README, and the benchmarks. Each one first installs what is
# missing (scripts/install-deps does nothing when all is there), then configures and
# builds with CMake and Ninja in a build folder of its own.

JOBS ?= $(shell nproc 2>/dev/null || echo 2)
CMAKE_CONFIGURE = cmake -S . -G Ninja -Wno-dev

.PHONY: run test bench screenshots deps clean

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

bench: deps
	@$(CMAKE_CONFIGURE) -B build/bench -DCMAKE_BUILD_TYPE=Release -DTESSARINE_TESTS=OFF -DTESSARINE_BENCH=ON >/dev/null
	@cmake --build build/bench
	QT_QPA_PLATFORM=offscreen build/bench/bench/tessarine_bench

# Pictures of every window on fixture ROMs, drawn under a virtual display, into docs/screenshots.
screenshots: deps
	@$(CMAKE_CONFIGURE) -B build/test -DCMAKE_BUILD_TYPE=Debug -DTESSARINE_SANITIZE=ON -DTESSARINE_WERROR=ON >/dev/null
	@cmake --build build/test --target tessarine_screenshots
	ASAN_OPTIONS=detect_leaks=0 xvfb-run -a -s "-screen 0 1280x1024x24" build/test/tools/screenshots/tessarine_screenshots docs/screenshots

clean:
	rm -rf build
