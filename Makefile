# Thin: every target is one command that can be typed by hand.
JOBS ?= $(shell nproc)
PREFIX ?= /usr/local
.PHONY: setup build run check test windows-test bench fuzz format tidy clean install

setup:
	scripts/setup

build: setup
	cmake --preset release
	cmake --build --preset release -j $(JOBS)

run: build
	scripts/run

check: build
	ctest --preset release -j $(JOBS)
	scripts/format --check

test: setup
	scripts/test

windows-test:
	scripts/setup --windows
	scripts/windows-test

bench: build
	scripts/bench

fuzz: setup
	cmake --preset fuzz
	cmake --build --preset fuzz -j $(JOBS)
	scripts/fuzz

format:
	scripts/format

tidy: setup
	scripts/tidy

clean:
	rm -rf build

install: build
	cmake --install build/release --prefix $(PREFIX)
