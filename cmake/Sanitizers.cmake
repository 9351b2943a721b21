# SPDX-FileCopyrightText: 2026 The Pilotel Developers
# SPDX-License-Identifier: MIT
# AddressSanitizer and UndefinedBehaviorSanitizer, and coverage, for the whole tree.
if(PILOTEL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # Not among "undefined": casts of numbers that the type cannot hold, as a device may answer them.
    add_compile_options(-fsanitize=float-cast-overflow,float-divide-by-zero)
    add_link_options(-fsanitize=address,undefined)
endif()

if(PILOTEL_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
