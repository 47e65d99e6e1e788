# make demo: install what is missing, build, render the example gallery into out/gallery.
# make test: install what is missing, build and run every test (SANITIZE=1: under ASan+UBSan).
JOBS ?= 2
ifeq ($(SANITIZE),1)
BUILD ?= build-asan
CMAKE_FLAGS += -DZB_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug
else
BUILD ?= build
endif

.PHONY: all deps build test demo interfaces clean

all: build

deps:
	@bash tools/install-deps.sh

build: deps
	@cmake -S . -B $(BUILD) -G Ninja $(CMAKE_FLAGS) > /dev/null
	@cmake --build $(BUILD) -j $(JOBS)

test: build
	@cd $(BUILD) && ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
	  ctest --output-on-failure -j $(JOBS)

demo: build
	@bash tools/gallery.sh $(BUILD) out/gallery

interfaces:
	@python3 tools/gen_interfaces.py

clean:
	rm -rf build build-asan out
