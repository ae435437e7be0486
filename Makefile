# One-command set-up: `make run` and `make test` install what a fresh Debian 12
# machine lacks, configure, build, and then run the host or every test.
SHELL := /bin/bash
BUILD ?= build
PACKAGES := cmake ninja-build g++ pkg-config qt6-base-dev qt6-image-formats-plugins \
            libgl-dev libtinyxml-dev libboost-dev libgif-dev libgtest-dev libgmock-dev \
            googletest libbenchmark-dev python3-ezdxf python3-matplotlib fonts-dejavu-core ccache \
            xvfb xauth librsvg2-bin util-linux libpugixml-dev
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
JOBS ?= $(shell nproc)

.PHONY: all deps configure build run test bench screenshots clean

all: build

deps:
	@missing=$$(for p in $(PACKAGES); do dpkg-query -W -f='$${Status}\n' $$p 2>/dev/null | grep -q 'ok installed' || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	  echo "Installing: $$missing"; \
	  $(SUDO) apt-get update -qq && DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq $$missing; \
	fi

$(BUILD)/build.ninja: | deps
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo

configure: deps $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# The desktop program where there is a display to show it on, the console
# host otherwise.
run: build
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  echo "A display is there: starting the desktop host, verdani."; \
	  $(BUILD)/bin/verdani; \
	else \
	  echo "No display (neither DISPLAY nor WAYLAND_DISPLAY is set): starting the console host, verdani-console."; \
	  $(BUILD)/bin/verdani-console; \
	fi

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

bench: build
	cmake --build $(BUILD) --target benchmarks -j $(JOBS)

# The README's pictures of the desktop program, taken in a virtual display.
screenshots: build
	doc/screenshots.sh $(BUILD)

clean:
	rm -rf $(BUILD)
