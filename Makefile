# make run   installs what is missing, builds and starts MORVE
# make test  the same, then runs every test
# make sanitize  the tests built and run under AddressSanitizer and UBSan
# make package   a Debian package (build/morve_VERSION_ARCH.deb)
# make web   the web version in build/web, to serve with any web server
BUILD   ?= build
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=Release
PACKAGES := g++ cmake ninja-build qt6-base-dev qt6-charts-dev qt6-svg-dev libqt6opengl6-dev \
            libgif-dev nlohmann-json3-dev libgtest-dev libbenchmark-dev liblapack-dev libopenblas-dev xvfb xauth poppler-utils \
            qt6-translations-l10n \
            dpkg-dev desktop-file-utils appstream shared-mime-info librsvg2-bin groff-base file lintian \
            libxlsxwriter-dev libdxflib-dev python3-openpyxl python3-ezdxf
# The web version's compiler, and the node and Chromium its tests run in; only
# `make web` (and so `make test`) asks for them, never `make run`.
WEB_PACKAGES := emscripten nodejs npm chromium

.PHONY: all deps web-deps configure build run test sanitize bench screenshots install package clean web

all: build

# The packages of a list that are missing, installed from apt. A package counts as
# there when dpkg has it or a program of its name is on the PATH (the npm that
# comes with a nodejs of another origin, say).
define install-missing
	@missing=""; for p in $(1); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q 'install ok installed' || \
	  command -v $$p >/dev/null || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Instalando pacotes:$$missing"; \
	  if [ "$$(id -u)" -eq 0 ]; then SUDO=""; else SUDO=sudo; fi; \
	  $$SUDO apt-get update -qq && \
	  DEBIAN_FRONTEND=noninteractive $$SUDO apt-get install -y -qq --no-install-recommends $$missing >/dev/null; \
	fi
endef

deps:
	$(call install-missing,$(PACKAGES))

web-deps:
	$(call install-missing,$(WEB_PACKAGES))

configure: deps
	@[ -f $(BUILD)/build.ninja ] || cmake -S . -B $(BUILD) -G Ninja $(CMAKE_FLAGS) >/dev/null

build: configure
	@cmake --build $(BUILD) -j2

# Only the two programs: the tests, icons and manual pages wait for `make test`.
# RUN_FLAGS go to morve (`make run RUN_FLAGS=--timing`).
RUN_FLAGS ?=
run: configure
	@if grep -q '^MORVE_GUI:BOOL=ON' $(BUILD)/CMakeCache.txt; then \
	  cmake --build $(BUILD) -j2 --target morve morve-calc && MORVE_DATA_DIR=$(CURDIR)/data $(BUILD)/morve $(RUN_FLAGS); \
	else cmake --build $(BUILD) -j2 --target morve-calc && \
	  $(BUILD)/morve-calc --list && $(BUILD)/morve-calc examples/form7-armadura-simples.json; fi

test: build web
	@cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2

# The core compiled to WebAssembly in $(BUILD)/wasm; $(BUILD)/web gets it beside
# the page (web/) and the help pages, a folder any web server can serve as it is.
WEB_OUT = $(abspath $(BUILD))/web
web: web-deps
	@[ -f $(BUILD)/wasm/build.ninja ] || emcmake cmake -S . -B $(BUILD)/wasm -G Ninja -DCMAKE_BUILD_TYPE=Release \
	  -DMORVE_WEB_OUTPUT=$(WEB_OUT) >/dev/null
	@cmake --build $(BUILD)/wasm -j2
	@mkdir -p $(WEB_OUT)/ajuda
	@if [ -d web ]; then cp -R web/. $(WEB_OUT)/; fi
	@# Until the page is there, a page that says so.
	@[ -f $(WEB_OUT)/index.html ] || printf '%s\n' '<!doctype html><html lang="pt-BR"><meta charset="utf-8">' \
	  '<title>MORVE</title><p>A página do MORVE ainda não está nesta versão.</p></html>' > $(WEB_OUT)/index.html
	@cp -R data/ajuda/. $(WEB_OUT)/ajuda/

SANITIZE_BUILD ?= build-sanitize
SANITIZE_FLAGS ?=
sanitize: deps
	@[ -f $(SANITIZE_BUILD)/build.ninja ] || cmake -S . -B $(SANITIZE_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_CXX_FLAGS="-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer" \
	  -DCMAKE_EXE_LINKER_FLAGS="-fsanitize=address,undefined" $(SANITIZE_FLAGS) >/dev/null
	@cmake --build $(SANITIZE_BUILD) -j2
	@cd $(SANITIZE_BUILD) && QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 \
	  UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j2

bench: configure
	@cmake --build $(BUILD) -j2 --target morve_bench && $(BUILD)/morve_bench

screenshots: build
	@mkdir -p $(BUILD)/screenshots
	@# On the screen of a student's laptop, 1366x768.
	@QT_QPA_PLATFORM=offscreen:configfile=$(CURDIR)/tests/gui/screens/1366x768.json MORVE_DATA_DIR=$(CURDIR)/data \
	  $(BUILD)/morve --screenshots $(BUILD)/screenshots

install: build
	@cmake --install $(BUILD)

package: build
	@cd $(BUILD) && cpack -G DEB

clean:
	rm -rf $(BUILD)
