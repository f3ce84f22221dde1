# What to do with a fresh copy on Debian 12, as root or with sudo. The build itself is CMake's.
.PHONY: help demo test bench docs

help: ## Lists these targets.
	@sed -n 's/^\([a-z]*\): ## /  make \1	/p' Makefile

# The recording that `make demo` filters; another one is given by WAV=file.
WAV ?= /usr/share/sounds/alsa/Front_Center.wav
export WAV

demo: ## Filters a voice recording, WAV=file for your own; results in build/demo.
	@tools/install-packages.sh build-essential cmake libsndfile1-dev libpng-dev alsa-utils
	@tools/build.sh build/demo/build stream_fir -DVLQS_TESTS=OFF -DVLQS_BENCH=OFF -DVLQS_EXAMPLES=ON
	@name=$$(basename "$$WAV" .wav) && build/demo/build/bin/stream_fir \
	    "$$WAV" "build/demo/$$name-filtered.wav" "build/demo/$$name-spectrum.png"

build_packages = build-essential cmake ninja-build pkg-config
peers = libbenchmark-dev libfftw3-dev libvolk2-dev libliquid-dev gnuplot-nox

test: ## Builds and runs every test on every build; ends with "N passed, N failed".
	@tools/install-packages.sh $(build_packages) binutils clang-14 llvm-14 libgtest-dev \
	    libsndfile1-dev libpng-dev alsa-utils
	@tools/run-tests.sh

bench: ## Measures everything beside its peers; results in docs/benchmarks.md.
	@tools/install-packages.sh $(build_packages) $(peers)
	@tools/run-bench.sh

docs: ## Writes the reference manual to build/manual/docs/html.
	@tools/install-packages.sh $(build_packages) doxygen
	@tools/build.sh build/manual docs -DVLQS_TESTS=OFF -DVLQS_EXAMPLES=OFF
