#include "httpbody.h"

#include <httplib.h>

#include <memory>

void HttpBody::send(httplib::Response &res, std::string body, const std::string &contentType, bool dropMidway)
{
    if (!dropMidway) {
        res.set_content(std::move(body), contentType.c_str());
        return;
    }
    auto shared = std::make_shared<std::string>(std::move(body));
    const size_t length = shared->size();
    res.set_content_provider(length, contentType.c_str(), [shared](size_t offset, size_t, httplib::DataSink &sink) {
        const size_t half = shared->size() / 2;
        if (offset >= half)
            return false;
        sink.write(shared->data() + offset, half - offset);
        return true;
    });
}
