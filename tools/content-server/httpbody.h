#pragma once

#include <string>

namespace httplib {
struct Response;
}

namespace HttpBody {

/**
 * Sets the body of `res`. With `dropMidway`, the length is announced in full but the connection is closed
 * after half of it, as a broken network would.
 */
void send(httplib::Response &res, std::string body, const std::string &contentType, bool dropMidway);

} // namespace HttpBody
