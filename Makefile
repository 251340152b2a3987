# The front of the build. `make demo` shows the component; `make test` proves it.

.DEFAULT_GOAL := ocx
.PHONY: ayuda setup setup-base setup-32 ocx ocx64 ocx32 demo test bench fuzz soak attack dist docs format tidy clean

SHELL := /bin/bash
H := herramientas
# A compiler cache shortens every second build; nothing depends on it.
export CMAKE_CXX_COMPILER_LAUNCHER ?= $(shell command -v ccache)

ayuda:
	@printf '%s\n' \
	  'make setup   install the Debian packages that are missing' \
	  'make ocx     build/win64/Pincela.ocx and build/win32/Pincela.ocx' \
	  'make demo    the gallery: every control on one form' \
	  'make test    every test: natively, and under 64- and 32-bit Wine' \
  '             (one: ctest --preset nativo|win64|win32 -R NAME)' \
	  'make bench   the measurements' \
	  'make fuzz    a minute of made-up input for each reader of text and bytes' \
	  'make soak    half an hour of use, looking for what is left behind' \
	  'make attack  50,000 cases of a container that does what no container should' \
	  'make dist    build/dist: the zip and the setup program of both widths' \
	  'make docs    docs/manual: the reference, out of the tables of members' \
	  'make tidy, make format, make clean'

# Everything that building and the demo need; and what the 32-bit tests add to it.
setup-base:
	@$H/instalar base
setup-32: setup-base
	@$H/instalar wine32
setup: setup-base setup-32

# The 64-bit build goes first: its generator writes both type libraries.
ocx64: setup-base
	@$H/construir win64 Pincela.ocx
ocx32: ocx64
	@$H/construir win32 Pincela.ocx
ocx: ocx32

demo: ocx
	@$H/construir win64 galeria.exe
	@$H/demo

test: setup
	@$H/probar

fuzz: setup-base
	@$H/instalar difuso
	@$H/difundir

soak: setup
	@$H/remojar

attack: setup
	@$H/atacar

bench: setup ocx
	@$H/construir win64 medidas
	@$H/construir win32 medidas
	@$H/medir

dist: ocx
	@$H/construir win64 ejemplo
	@$H/construir win32 ejemplo
	@$H/empaquetar

docs: setup-base
	@$H/construir win64 manual

format:
	@$H/instalar estilo
	@git ls-files '*.h' '*.cpp' | xargs clang-format -i

tidy: setup-base
	@$H/instalar estilo
	@$H/construir nativo all
	@git ls-files 'common/*.cpp' 'efectos/*.cpp' 'botonazo/*.cpp' 'area/*.cpp' 'tbox/*.cpp' \
	    'paginas/*.cpp' 'pruebas/nativas/*.cpp' | \
	  xargs -n 1 -P "$$(nproc)" clang-tidy -p build/nativo --quiet 2> >(grep -v 'warnings generated' >&2)

clean:
	@$H/prefijo borrar
	@rm -rf build
