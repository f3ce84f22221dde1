# What to do with a fresh copy on Debian 12, as root or with sudo. The build itself is CMake's.
.PHONY: help demo test test-all quick bench accuracy docs

help: ## Lists these targets.
	@sed -n 's/^\([a-z-]*\): ## /  make \1	/p' Makefile

# The recording that `make demo` filters; another one is given by WAV=file.
WAV ?= /usr/share/sounds/alsa/Front_Center.wav
export WAV

demo: ## Filters a voice recording, WAV=file for your own; results in build/demo.
	@tools/install-packages.sh build-essential cmake libsndfile1-dev libpng-dev alsa-utils
	@tools/build.sh build/demo/build stream_fir -DVLQS_TESTS=OFF -DVLQS_BENCH=OFF -DVLQS_EXAMPLES=ON
	@name=$$(basename "$$WAV" .wav) && build/demo/build/bin/stream_fir \
	    "$$WAV" "build/demo/$$name-filtered.wav" "build/demo/$$name-spectrum.png"

build_packages = build-essential cmake ninja-build pkg-config
test_packages = $(build_packages) binutils clang-14 clang-format-14 libgtest-dev \
    libsndfile1-dev libpng-dev alsa-utils
peers = libbenchmark-dev libfftw3-dev libvolk2-dev libliquid-dev libsleef-dev gnuplot-nox

test: ## Builds and tests every build; ends with "N passed, N failed".
	@tools/install-packages.sh $(test_packages)
	@tools/run-tests.sh

# `make test-all STAGES="tsan full"` runs some of them; tools/run-tests.sh lists them.
STAGES ?= all
test-all: ## The same, and what takes longer: more of Clang, threads, complete random sets.
	@tools/install-packages.sh $(test_packages) libclang-rt-14-dev llvm-14
	@tools/run-tests.sh $(STAGES)

quick: ## For a developer's loop: the baseline build, each test in its smallest sweep.
	@tools/install-packages.sh $(test_packages)
	@tools/run-tests.sh quick

bench: ## Measures everything beside its peers; results in docs/benchmarks.md.
	@tools/install-packages.sh $(build_packages) $(peers)
	@tools/run-bench.sh

accuracy: ## Measures the errors of floating-point results; they are in docs/accuracy.md.
	@tools/install-packages.sh $(build_packages) $(peers)
	@tools/run-accuracy.sh

docs: ## Writes the reference manual to build/manual/docs/html.
	@tools/install-packages.sh $(build_packages) doxygen
	@tools/build.sh build/manual docs -DVLQS_TESTS=OFF -DVLQS_EXAMPLES=OFF
