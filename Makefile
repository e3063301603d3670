# Convenience wrapper around CMake. `make demo` and `make test` work on a
# fresh Debian machine: they install what is missing first.
JOBS ?= $(shell nproc)
BUILD ?= build
ASAN_BUILD ?= build-asan
FUZZ_BUILD ?= build-fuzz
FUZZ_SECONDS ?= 180
FUZZ_SHORT_SECONDS ?= 60
TSAN_BUILD ?= build-tsan
BENCH_BUILD ?= build-bench
COVERAGE_BUILD ?= build-coverage
WINDOWS_BUILD ?= build-windows
BENCH_ARGS ?=

DEB_PACKAGES := cmake make g++ pkg-config libjsoncpp-dev libgtest-dev libgmock-dev \
	libbenchmark-dev ninja-build clang clang-format libclang-rt-dev llvm binutils gcovr dpkg-dev file

# The Windows cross-build only (`make windows`, `make windows-test`): MinGW-w64,
# Wine, GoogleTest's sources, and what `apt-get source` needs to unpack
# Debian's jsoncpp source package. Large; `make test` never installs them.
WINDOWS_PACKAGES := cmake make ninja-build g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 \
	wine wine64 googletest dpkg-dev

.PHONY: all deps format format-check build test demo fuzz-build fuzz fuzz-short fuzz-long tsan bench coverage \
	package package-check windows windows-test windows-deps clean

all: build

# Installs the Debian packages in $(1) that are missing.
define install-missing
	@missing=""; for p in $(1); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q 'install ok installed' || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "installing:$$missing"; \
	  SUDO=""; [ "$$(id -u)" -ne 0 ] && SUDO=sudo; \
	  $$SUDO apt-get update -qq && \
	  DEBIAN_FRONTEND=noninteractive $$SUDO apt-get install -y -qq --no-install-recommends $$missing; \
	fi
endef

deps:
	$(call install-missing,$(DEB_PACKAGES))

# Every C and C++ file of the tree, in the checked-in .clang-format.
format: deps
	@sh tools/format.sh --write

format-check: deps
	@sh tools/format.sh --check

build: deps
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
	cmake --build $(BUILD) -j $(JOBS)

test: format-check build
	cmake -S . -B $(ASAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DKOVA_SANITIZE=ON >/dev/null
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)
	cd $(ASAN_BUILD) && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1 \
	  ctest --output-on-failure -j $(JOBS)
	@if [ -f fuzz/CMakeLists.txt ]; then $(MAKE) --no-print-directory fuzz-short; fi

demo: build
	@sh tools/demo.sh $(BUILD)/kova samples

# libFuzzer targets, with clang, AddressSanitizer and UndefinedBehaviorSanitizer.
# `make fuzz FUZZ_SECONDS=600` fuzzes longer; fuzz/run.sh says how to replay a failure.
fuzz-build: deps
	CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DKOVA_FUZZ=ON -DKOVA_SANITIZE=ON -DKOVA_TESTS=OFF >/dev/null
	cmake --build $(FUZZ_BUILD) -j $(JOBS) --target kova_fuzzers

fuzz: fuzz-build
	@sh fuzz/run.sh $(FUZZ_BUILD) $(FUZZ_SECONDS)

fuzz-short: fuzz-build
	@sh fuzz/run.sh $(FUZZ_BUILD) $(FUZZ_SHORT_SECONDS)

# A campaign of hours, e.g. `make fuzz-long FUZZ_SECONDS=14400`: the fuzzers
# in stints, going on after a finding; fuzz/run.sh says where the findings
# and the figures go.
fuzz-long: fuzz-build
	@sh fuzz/run.sh $(FUZZ_BUILD) $(FUZZ_SECONDS) long

# The concurrency test under ThreadSanitizer.
tsan: deps
	cmake -S . -B $(TSAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKOVA_TSAN=ON >/dev/null
	cmake --build $(TSAN_BUILD) -j $(JOBS) --target kova_tests
	TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1 \
	  $(TSAN_BUILD)/tests/kova_tests --gtest_filter='Concurrency.*'

# Google Benchmark, Release build; bench/README.md explains the numbers.
# BENCH_ARGS passes options on, e.g. BENCH_ARGS=--benchmark_filter=parse/
bench: deps
	cmake -S . -B $(BENCH_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Release -DKOVA_BENCH=ON \
	  -DKOVA_TESTS=OFF >/dev/null
	cmake --build $(BENCH_BUILD) -j $(JOBS) --target kova_bench
	$(BENCH_BUILD)/bench/kova_bench $(BENCH_ARGS)

# Line and branch coverage of src/ by the unit tests (gcc --coverage, gcovr).
coverage: deps
	cmake -S . -B $(COVERAGE_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DKOVA_COVERAGE=ON >/dev/null
	cmake --build $(COVERAGE_BUILD) -j $(JOBS) --target kova_tests
	find $(COVERAGE_BUILD) -name '*.gcda' -delete
	cd $(COVERAGE_BUILD)/tests && ./kova_tests --gtest_brief=1
	gcovr -r . $(COVERAGE_BUILD) --filter 'src/' --exclude-throw-branches \
	  --exclude-unreachable-branches --print-summary

# The .deb of the library, headers, tool, CMake package and pkg-config file
# (CPack), in $(BUILD)/.
package: build
	cd $(BUILD) && cpack -G DEB

# Installs that .deb with dpkg, builds a client against it, removes it again.
package-check: package
	sh tests/install/deb_test.sh $$(ls $(BUILD)/kova_*.deb | head -n 1) tests/install/consumer

# kova.dll (with its import library kova.lib) and kova.exe for Windows,
# cross-built with MinGW-w64 from the same sources: 64-bit in
# $(WINDOWS_BUILD)/, 32-bit (__stdcall entry points) in $(WINDOWS32_BUILD)/.
# jsoncpp is built from Debian's source package, unpacked there by apt-get
# source.
WINDOWS32_BUILD ?= build-windows32
WINDOWS32_PACKAGES := cmake make ninja-build g++-mingw-w64-i686-posix binutils-mingw-w64-i686 \
	googletest dpkg-dev
# Wine's 32-bit loader comes from the archive's i386 architecture.
WINDOWS32_WINE_PACKAGES := wine wine32:i386

.PHONY: windows32 windows32-test windows32-deps windows32-wine windows32-wine-packages \
	windows32-clean

# $(call windows-build,FOLDER,PROCESSOR): configures FOLDER with the
# MinGW-w64 toolchain for PROCESSOR (x86_64, i686), builds the DLL and the
# tool, and checks the DLL's export and import tables.
define windows-build
	sh tools/debian_source.sh libjsoncpp $(1)/debian-source
	cmake -S . -B $(1) -G Ninja -DCMAKE_BUILD_TYPE=Release \
	  -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-$(2).cmake \
	  -DKOVA_JSONCPP_SOURCE_DIR=$$(ls -d $(abspath $(1))/debian-source/libjsoncpp-*/ | head -n 1) \
	  >/dev/null
	cmake --build $(1) -j $(JOBS) --target kova_shared kova_tool
	@sh tests/windows/exported_symbols.sh $(1)/kova.dll $(2)-w64-mingw32-objdump
endef

# $(call windows-ctest,FOLDER): runs the test programs built in FOLDER under
# Wine, in a prefix of the folder's own, quietly.
windows-ctest = [ -d $(1)/wine ] || \
	WINEPREFIX=$(abspath $(1))/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= wineboot --init; \
	cd $(1) && ctest --output-on-failure -j $(JOBS)

windows: windows-deps
	$(call windows-build,$(WINDOWS_BUILD),x86_64)

windows32: windows32-deps
	$(call windows-build,$(WINDOWS32_BUILD),i686)

# The unit and bad-input suites as Windows executables under Wine, kova.dll
# loaded by LoadLibrary and linked through kova.lib, and its export and
# import tables checked.
windows-test: windows
	cmake --build $(WINDOWS_BUILD) -j $(JOBS)
	$(call windows-ctest,$(WINDOWS_BUILD))

# The same for 32-bit Windows, under 32-bit Wine. Where that cannot be
# installed, the programs are still built (a client has then linked
# kova.lib's decorated __stdcall names) and the export and import tables are
# checked; nothing is run.
windows32-test: windows32
	cmake --build $(WINDOWS32_BUILD) -j $(JOBS)
	@if $(MAKE) --no-print-directory windows32-wine; then \
	  $(call windows-ctest,$(WINDOWS32_BUILD)); \
	else \
	  echo "windows32-test: 32-bit Wine cannot be installed on this machine: the 32-bit test"; \
	  echo "programs are built but NOT run; only the export and import tables are checked."; \
	  sh tests/windows/exported_symbols.sh $(WINDOWS32_BUILD)/kova.dll i686-w64-mingw32-objdump \
	    $(WINDOWS32_BUILD)/kova_import_library_test.exe; \
	fi

windows-deps:
	$(call install-missing,$(WINDOWS_PACKAGES))

windows32-deps:
	$(call install-missing,$(WINDOWS32_PACKAGES))

# Adds the i386 architecture to dpkg when it is missing and installs Wine
# with its 32-bit loader. When that fails, an architecture added here is
# removed again, so that apt is left as it was found.
windows32-wine:
	@SUDO=""; [ "$$(id -u)" -ne 0 ] && SUDO=sudo; added=""; \
	if ! dpkg --print-foreign-architectures | grep -qx i386; then \
	  echo "adding the i386 architecture to dpkg"; $$SUDO dpkg --add-architecture i386; added=yes; \
	fi; \
	$(MAKE) --no-print-directory windows32-wine-packages && exit 0; \
	if [ -n "$$added" ] && $$SUDO dpkg --remove-architecture i386; then \
	  echo "the i386 architecture removed again"; $$SUDO apt-get update -qq || true; \
	fi; \
	exit 1

windows32-wine-packages:
	$(call install-missing,$(WINDOWS32_WINE_PACKAGES))

clean: windows32-clean
windows32-clean:
	rm -rf $(WINDOWS32_BUILD)

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD) $(TSAN_BUILD) $(BENCH_BUILD) $(COVERAGE_BUILD) \
	  $(WINDOWS_BUILD)
