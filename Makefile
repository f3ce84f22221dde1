# What to do with a fresh copy on Debian 12, as root or with sudo. The build itself is CMake's.
.PHONY: help demo

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
