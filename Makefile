# Convenience targets; each one runs the set-up first so that a fresh clone
# on a fresh Debian 12 machine needs nothing else.
BUILD      ?= build
ASAN_BUILD ?= build-asan
TSAN_BUILD ?= build-tsan
JOBS       ?= $(shell nproc)

.PHONY: setup configure build demo test test-asan test-tsan bench example clean

setup:
	@bash scripts/setup.sh

configure: setup
	@cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

demo: build
	@bash scripts/run-demo.sh $(BUILD)/demo/gallery

test: build
	@cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

test-asan: setup
	@cmake -S . -B $(ASAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DQC_SANITIZE=ON >/dev/null
	@cmake --build $(ASAN_BUILD) -j $(JOBS)
	@cd $(ASAN_BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

# The timer's worker thread under ThreadSanitizer (Qt itself is not
# instrumented; tests/tsan.supp names the one report that comes from inside it).
test-tsan: setup
	@cmake -S . -B $(TSAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DQC_TSAN=ON >/dev/null
	@cmake --build $(TSAN_BUILD) -j $(JOBS) --target tst_qctimer
	@cd $(TSAN_BUILD) && QT_QPA_PLATFORM=offscreen \
	  TSAN_OPTIONS="suppressions=$(CURDIR)/tests/tsan.supp halt_on_error=1" ctest --output-on-failure -R tst_qctimer

# Installs into a scratch prefix and builds examples/panel against it.
example: build
	@bash scripts/example.sh $(BUILD)

bench: build
	@for b in $(BUILD)/bench/bench_*; do echo "== $$b"; $$b; done

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(TSAN_BUILD)
