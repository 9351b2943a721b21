// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The operations of the contract, with what each of them takes and answers.
#include "operations/operations.h"

#include "units/recordmembers.h"
#include "values/numberlist.h"
#include "veltrix_sdk/records.h"
#include "veltrix_sdk/sdk.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>

namespace veltrix_simulator
{
namespace
{

template <typename T, typename Kinds>
constexpr void appendKinds(Kinds &kinds)
{
    if constexpr (isRecord<T>) {
        for (const Member &member : membersOf<T>()) {
            kinds.push_back(member.kind);
        }
    } else if constexpr (!std::is_void_v<T>) {
        kinds.push_back(kindOf<T>());
    }
}

/// What a parameter points to is filled in by the call when it is a number or a record that can be written.
template <typename Parameter>
void appendFilledKinds(std::vector<Kind> &kinds)
{
    using Target = std::remove_pointer_t<Parameter>;
    if constexpr (std::is_pointer_v<Parameter> && !std::is_const_v<Target> &&
                  (std::is_arithmetic_v<Target> || isRecord<Target>)) {
        appendKinds<Target>(kinds);
    }
}

/// What a parameter brings into the call.
template <typename Parameter, typename Kinds>
constexpr void appendArgumentKinds(Kinds &kinds)
{
    using Target = std::remove_const_t<std::remove_pointer_t<Parameter>>;
    if constexpr (std::is_same_v<Parameter, Target *> && bringsMember<Target>) {
        kinds.push_back(broughtKind<Target>());
    } else if constexpr (std::is_same_v<Parameter, const Target *> && isRecord<Target>) {
        appendKinds<Target>(kinds);
    } else if constexpr (std::is_arithmetic_v<Parameter> || std::is_same_v<Parameter, const char *>) {
        appendKinds<Parameter>(kinds);
    }
}

/// A number, a text, an object or a record, as a result or in the place that a pointer leads to.
template <typename T>
Passed describeValue()
{
    Passed passed;
    if constexpr (isRecord<T>) {
        passed.shape = Passed::Shape::Record;
        passed.members = membersOf<T>();
        if constexpr (bringsMember<T>) {
            passed.brought = broughtKind<T>();
        }
    } else if constexpr (std::is_same_v<T, const char *>) {
        passed.shape = Passed::Shape::Text;
    } else if constexpr (std::is_arithmetic_v<T>) {
        passed.shape = Passed::Shape::Number;
        passed.kind = kindOf<T>();
    } else if constexpr (!std::is_void_v<T>) {
        passed.shape = Passed::Shape::Object;
    }
    return passed;
}

template <typename Parameter>
Passed describeParameter()
{
    using Target = std::remove_const_t<std::remove_pointer_t<Parameter>>;
    if constexpr (std::is_pointer_v<Parameter> &&
                  (std::is_arithmetic_v<Target> ||
                   isRecord<Target>)&&!std::is_same_v<Parameter, const char *>) {
        Passed passed{describeValue<Target>()};
        passed.isFilled = std::is_same_v<Parameter, Target *>;
        return passed;
    } else {
        return describeValue<Parameter>();
    }
}

template <typename Result, typename... Parameters>
Operation describeCall(OperationId id, Role role)
{
    Operation operation{id, nameOf(id).name, nameOf(id).interface, role, {}, {}, {}, describeValue<Result>()};
    appendKinds<Result>(operation.answer);
    (appendFilledKinds<Parameters>(operation.answer), ...);
    (appendArgumentKinds<Parameters>(operation.arguments), ...);
    (operation.parameters.push_back(describeParameter<Parameters>()), ...);
    return operation;
}

template <typename Result, typename Object, typename... Parameters>
Operation describeCall(OperationId id, Role role, Result (Object::* /*operation*/)(Parameters...))
{
    return describeCall<Result, Parameters...>(id, role);
}

/// Counts kinds in the place of keeping them.
struct KindCount
{
    std::size_t count{0};

    constexpr void push_back(Kind /*kind*/) { ++count; }
};

template <typename Result, typename... Parameters>
constexpr std::size_t countArguments()
{
    KindCount kinds;
    (appendArgumentKinds<Parameters>(kinds), ...);
    return kinds.count;
}

template <typename Result, typename Object, typename... Parameters>
constexpr std::size_t countArguments(Result (Object::* /*operation*/)(Parameters...))
{
    return countArguments<Result, Parameters...>();
}

constexpr std::size_t argumentCounts[]{
#define FUNCTION(name, interface, ...) countArguments<__VA_ARGS__>(),
#define OPERATION(object, name, role) countArguments(&veltrix_sdk::object::name),
#include "operations/operations.inc"
};

constexpr std::size_t mostArguments()
{
    std::size_t most{0};
    for (const std::size_t count : argumentCounts) {
        most = count > most ? count : most;
    }
    return most;
}

static_assert(NumberList::capacity == mostArguments());

/// Whether the pattern, in which a `*` stands for any characters, covers the whole name.
bool fits(std::string_view pattern, std::string_view name)
{
    std::size_t inPattern{0};
    std::size_t inName{0};
    std::size_t afterStar{std::string_view::npos};
    std::size_t swallowed{0};
    // Only the latest star ever has to take more: what stands before it fits already.
    while (inName < name.size()) {
        if (inPattern < pattern.size() && pattern[inPattern] == '*') {
            afterStar = ++inPattern;
            swallowed = inName;
        } else if (inPattern < pattern.size() && pattern[inPattern] == name[inName]) {
            ++inPattern;
            ++inName;
        } else if (afterStar != std::string_view::npos) {
            inPattern = afterStar;
            inName = ++swallowed;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', inPattern) == std::string_view::npos;
}

} // namespace

const std::vector<Operation> &allOperations()
{
    static const std::vector<Operation> list{
#define FUNCTION(name, interface, ...) describeCall<__VA_ARGS__>(OperationId::name, Role::Other),
#define OPERATION(object, name, role) describeCall(OperationId::name, Role::role, &veltrix_sdk::object::name),
#include "operations/operations.inc"
    };
    return list;
}

const Operation &operationOf(OperationId id)
{
    return allOperations()[static_cast<std::size_t>(id)];
}

const Operation *findOperation(std::string_view name)
{
    const std::vector<Operation> &operations = allOperations();
    const auto found = std::find_if(operations.begin(), operations.end(),
                                    [&](const Operation &operation) { return operation.name == name; });
    return found == operations.end() ? nullptr : &*found;
}

std::vector<const Operation *> operationsMatching(std::string_view pattern)
{
    const bool isName{pattern.find('*') == std::string_view::npos};
    std::vector<const Operation *> matching;
    for (const Operation &operation : allOperations()) {
        if (isName ? operation.name == pattern
                   : operation.interface == Interface::Device && fits(pattern, operation.name)) {
            matching.push_back(&operation);
        }
    }
    return matching;
}

} // namespace veltrix_simulator
