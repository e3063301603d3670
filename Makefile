# Convenience wrapper around CMake. `make demo` and `make test` work on a
# fresh Debian machine: they install what is missing first.
JOBS ?= $(shell nproc)
BUILD ?= build
ASAN_BUILD ?= build-asan
FUZZ_BUILD ?= build-fuzz
FUZZ_SECONDS ?= 180
FUZZ_SHORT_SECONDS ?= 60

DEB_PACKAGES := cmake make g++ pkg-config libjsoncpp-dev libgtest-dev libgmock-dev \
	libbenchmark-dev ninja-build clang libclang-rt-dev llvm binutils gcovr

.PHONY: all deps build test demo fuzz fuzz-short tsan bench coverage clean

all: build

deps:
	@missing=""; for p in $(DEB_PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q 'install ok installed' || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "installing:$$missing"; \
	  SUDO=""; [ "$$(id -u)" -ne 0 ] && SUDO=sudo; \
	  $$SUDO apt-get update -qq && \
	  DEBIAN_FRONTEND=noninteractive $$SUDO apt-get install -y -qq --no-install-recommends $$missing; \
	fi

build: deps
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
	cmake --build $(BUILD) -j $(JOBS)

test: build
	cmake -S . -B $(ASAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DKOVA_SANITIZE=ON >/dev/null
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	cd $(BUILD) && ctest --output-on-failure
	cd $(ASAN_BUILD) && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1 \
	  ctest --output-on-failure
	@if [ -f fuzz/CMakeLists.txt ]; then $(MAKE) --no-print-directory fuzz-short; fi

demo: build
	@sh tools/demo.sh $(BUILD)/kova samples

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD) build-tsan build-bench build-coverage
