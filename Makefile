# Two commands: `make run` and `make test`. Both install what is missing first.
.PHONY: run test bench format clean

run:
	@scripts/install-packages
	@scripts/run

test:
	@scripts/install-packages
	@scripts/test

bench:
	@scripts/install-packages
	@cmake --preset dev >/dev/null && cmake --build --preset dev >/dev/null
	@scripts/bench

format:
	@find src tests bench fuzz \( -name '*.h' -o -name '*.cpp' \) -print0 | xargs -0 clang-format -i

clean:
	@rm -rf build
