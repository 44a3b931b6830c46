# Entry points for building, testing and running the toolkit. CMake and Ninja do
# the work; this file only fixes the build folders and the order of the steps.

JOBS      ?= 2
BUILD_TYPE ?= RelWithDebInfo
DEMO_ARGS ?= demo --init tools/quilon/Demo.xml

BUILD_DIR := build
ASAN_DIR  := build-asan
TSAN_DIR  := build-tsan
FUZZ_DIR  := build-fuzz

# Seconds of fuzzing: FUZZ_TIME for make fuzz, FUZZ_SHORT_TIME within make test.
FUZZ_TIME ?= 60
FUZZ_SHORT_TIME ?= 15
CLANGXX ?= clang++
# Succeeds when clang can link a libFuzzer target here (clang and its
# runtime libraries installed).
fuzz_available = printf 'extern "C" int LLVMFuzzerTestOneInput(const char*, unsigned long) { return 0; }' | \
    $(CLANGXX) -x c++ -fsanitize=fuzzer - -o /dev/null >/dev/null 2>&1

CMAKE ?= cmake
CTEST ?= ctest
CLANG_FORMAT ?= clang-format

ASAN_ENV := ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
TSAN_ENV := TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1

# configure,<folder>,<extra cmake arguments>
# The make folders build the core, the tool and the tests in batches of
# sources (unity build), which is fastest for a clean build; UNITY=OFF for a folder
# in which single files are edited and rebuilt.
UNITY ?= ON
configure = $(CMAKE) -S . -B $(1) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) -DQUILON_UNITY_BUILD=$(UNITY) $(2)
compile   = $(CMAKE) --build $(1) --parallel $(JOBS)
run_tests = cd $(1) && $(2) $(CTEST) --output-on-failure -j$(JOBS)

FORMAT_DIRS := include src startup basic tools tests bench fuzz

# The long run of the concurrency suites: QUILON_STRESS multiplies their
# iterations. STRESS_DIR=build-tsan runs it under ThreadSanitizer (after make tsan).
STRESS ?= 100
STRESS_DIR ?= $(BUILD_DIR)
STRESS_FILTER ?= *Concurrency*:ReferenceCountTest.CopiesOnTwoThreads*

# Steps run in the order written; Ninja and ctest parallelise inside each step.
.NOTPARALLEL:
.PHONY: all deps bench-deps build test asan tsan fuzz fuzz-build stress demo bench format clean

all: build

deps:
	scripts/install-deps.sh

build:
	$(call configure,$(BUILD_DIR))
	$(call compile,$(BUILD_DIR))

test: deps build
	$(call run_tests,$(BUILD_DIR))
	$(MAKE) --no-print-directory asan
	$(MAKE) --no-print-directory tsan
	@if $(fuzz_available); then \
	    $(MAKE) --no-print-directory fuzz FUZZ_TIME=$(FUZZ_SHORT_TIME); \
	else \
	    echo "test: clang's libFuzzer runtime is missing; the archive and image readers are not fuzzed"; \
	fi

asan:
	$(call configure,$(ASAN_DIR),-DQUILON_SANITIZE=ON -DQUILON_BUILD_BENCH=OFF)
	$(call compile,$(ASAN_DIR))
	$(call run_tests,$(ASAN_DIR),$(ASAN_ENV))

tsan:
	$(call configure,$(TSAN_DIR),-DQUILON_TSAN=ON -DQUILON_BUILD_BENCH=OFF)
	$(call compile,$(TSAN_DIR))
	$(call run_tests,$(TSAN_DIR),$(TSAN_ENV))

# The archive reader, the image file readers and the object-set readers under libFuzzer,
# AddressSanitizer and UBSan, each from a seed corpus that the writers
# produce (the CSV reader from the test fixtures) and for half of FUZZ_TIME
# (the CSV reader a quarter); new inputs are kept in $(FUZZ_DIR)/corpus,
# $(FUZZ_DIR)/image-corpus and $(FUZZ_DIR)/csv-corpus. Only the fuzz targets and the libraries they
# load are built there.
fuzz-build:
	CXX=$(CLANGXX) $(call configure,$(FUZZ_DIR),-DQUILON_FUZZ=ON -DQUILON_BUILD_TESTS=OFF -DQUILON_BUILD_BENCH=OFF)
	$(call compile,$(FUZZ_DIR)) --target ArchiveReaderFuzzer ArchiveSeedCorpus ImageReaderFuzzer ImageSeedCorpus \
	    ObjectSetCsvFuzzer

fuzz: fuzz-build
	$(FUZZ_DIR)/bin/ArchiveSeedCorpus $(FUZZ_DIR)/corpus
	$(ASAN_ENV) $(FUZZ_DIR)/bin/ArchiveReaderFuzzer -max_total_time=$$(( $(FUZZ_TIME) / 2 )) -max_len=4096 \
	    -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 $(FUZZ_DIR)/corpus
	$(FUZZ_DIR)/bin/ImageSeedCorpus $(FUZZ_DIR)/image-corpus
	$(ASAN_ENV) $(FUZZ_DIR)/bin/ImageReaderFuzzer -max_total_time=$$(( $(FUZZ_TIME) / 2 )) -max_len=16384 \
	    -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 $(FUZZ_DIR)/image-corpus
	mkdir -p $(FUZZ_DIR)/csv-corpus
	$(ASAN_ENV) $(FUZZ_DIR)/bin/ObjectSetCsvFuzzer -max_total_time=$$(( $(FUZZ_TIME) / 4 + 1 )) -max_len=4096 \
	    -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 $(FUZZ_DIR)/csv-corpus tests/fixtures/csv

stress: build
	$(call compile,$(STRESS_DIR))
	cd $(STRESS_DIR) && $(ASAN_ENV) $(TSAN_ENV) QUILON_STRESS=$(STRESS) \
	    bin/quilon_tests --gtest_filter='$(STRESS_FILTER)'

demo: deps build
	$(BUILD_DIR)/bin/quilon $(DEMO_ARGS)

# The peer libraries that benchmarks compare against, installed for make bench
# only: the library and its tests never need them.
BENCH_PACKAGES := libopencv-dev libinsighttoolkit5-dev

bench-deps:
	QUILON_EXTRA_PACKAGES="$(BENCH_PACKAGES)" scripts/install-deps.sh

bench: deps bench-deps build
	@set -e; found=0; \
	for program in $(BUILD_DIR)/bin/bench_*; do \
	    [ -x "$$program" ] || continue; \
	    found=1; echo "== $$program"; "$$program"; \
	done; \
	[ $$found = 1 ] || echo "bench: no benchmark programs in $(BUILD_DIR)/bin"

format:
	find $(wildcard $(FORMAT_DIRS)) -type f \( -name '*.h' -o -name '*.hpp' -o -name '*.cpp' \) \
	    -print0 | xargs -0 -r $(CLANG_FORMAT) -i

clean:
	rm -rf $(BUILD_DIR) $(ASAN_DIR) $(TSAN_DIR) $(FUZZ_DIR)
