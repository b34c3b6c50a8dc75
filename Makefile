# The face of the build; what each command does stands in scripts/.
.PHONY: help run build test check bench performance fuzz pictures format clean

help:
	@echo "make run     install what is missing, build, open a sample skin"
	@echo "make test    install what is missing, build, run all tests, then again under the sanitizers; then check"
	@echo "make build   install what is missing, build the programs (build/ornavo, build/ornavo-cli) and the tests"
	@echo "make check   hold the sources to their layout and rules: clang-format, clang-tidy, each header by itself"
	@echo "make bench   measure, each figure beside a peer, and fail where a goal is missed"
	@echo "make performance  the same, and write the table into docs/performance.md"
	@echo "make fuzz    feed the readers with garbage for FUZZ_SECONDS (60) each"
	@echo "make pictures  take the pictures of the guide anew"
	@echo "make format  lay out the sources"
	@echo "make clean   remove what was built"

run test check bench fuzz pictures format:
	@scripts/$@

performance:
	@scripts/bench --write

build:
	@scripts/setup build
	@scripts/build default -DBUILD_TESTING=ON

clean:
	rm -rf build build-sanitize build-bench build-fuzz build-check
