// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How a test class makes itself known to its program.
#pragma once

#include <QObject>

#include <memory>

/// A test class of this program, under the name of its source file: tst_bad_pixels.
class TestClass
{
public:
    using Make = std::unique_ptr<QObject> (*)();

    /// Puts the class into the program's list. Of the path of its source file only the name counts.
    TestClass(const char *sourceFile, Make make) noexcept;
    ~TestClass() = default;
    TestClass(const TestClass &) = delete;
    TestClass &operator=(const TestClass &) = delete;

    const char *const sourceFile;
    const Make make;
    /// The class that was registered before; null for the first one.
    const TestClass *const previous;

    /// The class that was registered last; null when there is none.
    static const TestClass *last() noexcept;
};

/// Stands once at the end of a test's source file, before its moc file is included.
#define PILOTEL_TEST_CLASS(Class)                                                                            \
    static const TestClass registered##Class{__FILE__, []() -> std::unique_ptr<QObject> {                    \
                                                 return std::make_unique<Class>();                           \
                                             }};
