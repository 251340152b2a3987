# Warnings are errors everywhere; sanitizers on in the native build; small code in the shipped one.
add_compile_options(-Wall -Wextra -Wpedantic -Werror -Wsuggest-override -Wnon-virtual-dtor)

if(MINGW)
    # The platform's headers use anonymous structures and casts that pedantry rejects.
    add_compile_options(-Wno-pedantic -Wno-non-virtual-dtor -Wno-attributes -Wno-cast-function-type -Wno-unknown-pragmas)
    add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX WINVER=0x0A00
                            _WIN32_WINNT=0x0A00 STRICT)
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-static -Wl,--gc-sections)
else()
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    if(PINCELA_DIFUSO)
        add_compile_options(-fsanitize=fuzzer-no-link)
    endif()
endif()
