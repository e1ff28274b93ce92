#pragma once

#include <stdexcept>
#include <string>

// The message of the std::invalid_argument `call` throws, or "no exception".
template <class Call>
std::string Thrown(Call call) {
    try {
        call();
    } catch (const std::invalid_argument& e) {
        return e.what();
    }
    return "no exception";
}
