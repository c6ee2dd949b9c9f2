# Two commands for a newcomer: `make run` and `make test`. Both install what is missing first.
BUILD_DIR ?= build
JOBS ?= $(shell nproc)
SAMPLE_DIR := $(BUILD_DIR)/sample

.PHONY: all deps configure build run test package format clean

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
