/// Calls of the library's functions with arguments from the command line.
#pragma once

#include "radioctl/request.h"

#include <tuple>
#include <utility>

namespace radioctl {

/// An argument as a function takes it: texts are passed as pointers.
template <typename T>
decltype(auto) passed(const Arguments& in, size_t index)
{
    if constexpr (std::is_same_v<T, const char*>) {
        return in.at<std::string>(index).c_str();
    } else {
        return in.at<T>(index);
    }
}

/// A function whose parameters are the request's arguments, one by one.
template <typename... Params>
auto call(int (*function)(Params...))
{
    using Types = std::tuple<std::remove_cvref_t<Params>...>;
    return [=](const Arguments& in, Reply to) {
        return [&]<size_t... i>(std::index_sequence<i...>)
        {
            return function(passed<std::tuple_element_t<i, Types>>(in, i)..., to.userData, to.callback);
        }
        (std::make_index_sequence<sizeof...(Params) - 2>());
    };
}

/// A function whose last argument is a list, which takes two parameters: its elements and their number.
template <typename... Params>
auto callWithList(int (*function)(Params...))
{
    constexpr size_t listIndex = sizeof...(Params) - 4;
    using Types = std::tuple<std::remove_cvref_t<Params>...>;
    using Element = std::remove_const_t<std::remove_pointer_t<std::tuple_element_t<listIndex, Types>>>;
    return [=](const Arguments& in, Reply to) {
        auto list = in.at<std::vector<Element>>(listIndex);
        Element none{}; // functions refuse a null pointer, some even for no elements
        Element* elements = list.empty() ? &none : list.data();
        return [&]<size_t... i>(std::index_sequence<i...>)
        {
            return function(in.at<std::tuple_element_t<i, Types>>(i)..., elements,
                            static_cast<std::tuple_element_t<listIndex + 1, Types>>(list.size()), to.userData,
                            to.callback);
        }
        (std::make_index_sequence<listIndex>());
    };
}

} // namespace radioctl
