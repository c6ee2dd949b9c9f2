# Two commands for a newcomer: `make run` and `make test`. Both install what is missing first.
BUILD_DIR ?= build
JOBS ?= $(shell nproc)
SAMPLE_DIR := $(BUILD_DIR)/sample

.PHONY: all deps configure build run test coverage package format clean

all: build

deps:
	@scripts/install-deps

$(BUILD_DIR)/CMakeCache.txt: | deps
	cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo

configure: deps $(BUILD_DIR)/CMakeCache.txt

build: configure
	cmake --build $(BUILD_DIR) -j $(JOBS)

test: build
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS)

# Line and branch coverage of src/ and cli/ from a whole-suite run in a build folder of its own.
COVERAGE_DIR ?= build-coverage
coverage: deps
	cmake -S . -B $(COVERAGE_DIR) -DCMAKE_BUILD_TYPE=Debug \
	  -DCMAKE_CXX_FLAGS="--coverage -O0 -g" -DCMAKE_EXE_LINKER_FLAGS=--coverage
	cmake --build $(COVERAGE_DIR) -j $(JOBS) --target orvale_tests orvale_ui_tests orvale
	find $(COVERAGE_DIR) -name '*.gcda' -delete
	ctest --test-dir $(COVERAGE_DIR) --output-on-failure -j $(JOBS)
	gcovr --root . --object-directory $(COVERAGE_DIR) --filter 'src/' --filter 'cli/' \
	  --exclude-throw-branches --exclude-unreachable-branches --print-summary \
	  --gcov-ignore-parse-errors -j $(JOBS) \
	  --txt $(COVERAGE_DIR)/coverage.txt

# A Debian package (build/orvale_VERSION_ARCH.deb) whose desktop files have passed their checks.
package: build
	ctest --test-dir $(BUILD_DIR) --output-on-failure -R '^(desktop_entry|metainfo)_valid$$'
	cd $(BUILD_DIR) && cpack

run: build
	@scripts/run-sample $(BUILD_DIR)

format:
	clang-format -i $$(git ls-files '*.cpp' '*.h')

clean:
	rm -rf $(BUILD_DIR)
