# Every target installs what it needs and works on a fresh Debian 12 machine.
.DEFAULT_GOAL := help
.PHONY: run test prove bench ocx run-ocx fuzz lint format golden published screenshots package analyse coverage clean help

run: ## do the main job: open a form with the three controls in the designer
	@scripts/run.sh

test: ## what a change must pass: all tests, native and for Windows (x64)
	@scripts/test.sh

prove: ## what a release must pass as well: x86, sanitizers, fuzzing, lint, reproducibility, packages
	@scripts/prove.sh

bench: ## measure, and print each figure as a ratio to a peer or a bound
	@scripts/bench.sh

ocx: ## cross-compile the component server for Windows, x64 and x86
	@scripts/ocx.sh

run-ocx: ## show the controls of lumenkit.ocx in a window, under Wine
	@scripts/run-ocx.sh

package: ## packages of the tools for Debian and of the server for Windows, in build/package
	@scripts/package.sh

fuzz: ## fuzz each target for FUZZ_SECONDS (default 600)
	@scripts/fuzz.sh

analyse: ## cppcheck and Valgrind over the core
	@scripts/analyse.sh

coverage: ## which lines and branches of the core the tests reach
	@scripts/coverage.sh

lint: ## clang-tidy over all sources
	@scripts/lint.sh

format: ## reformat all sources
	@scripts/format.sh

golden: ## regenerate the golden files; review the diff
	@scripts/golden.sh

published: ## regenerate the interface definitions, manifest and reference pages; review the diff
	@scripts/published.sh

screenshots: ## redraw the pictures of the documents; look at them
	@scripts/screenshots.sh

clean: ## remove everything that was built
	@rm -rf build

help: ## this list
	@sed -n 's/^\([a-z-]*\):.*## \(.*\)/  make \1\t\2/p' Makefile | expand -t 20
