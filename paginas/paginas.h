// The three property pages.
#pragma once

#include "paginas/propcolores.h"
#include "paginas/propcoloresarea.h"
#include "paginas/propgeneral.h"
