#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace folioscope {

// A value that tells its own kind.

struct NullValue {};

// units / 10^places
struct DecimalValue {
    std::int64_t units = 0;
    std::uint8_t places = 0;
};

using EmptyValue = std::monostate;

using TaggedValue = std::variant<EmptyValue, NullValue, std::string, std::uint8_t, std::int16_t, std::int32_t, float,
                                 double, DecimalValue, bool>;

}  // namespace folioscope
