#include "server/MultipartParser.h"

#include <algorithm>

namespace orvale_service {
namespace {

const std::string kCrlf = "\r\n";
constexpr std::size_t kMaxHeaderBlock = 16 * 1024;

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Parameters of a header value such as: form-data; name="a"; filename="b c.mp4". A quoted value
// runs to the quote that is followed by ";" or the end, so a file name may itself hold a quote.
std::vector<std::pair<std::string, std::string>> headerParameters(const std::string& value) {
    std::vector<std::pair<std::string, std::string>> parameters;
    std::size_t at = value.find(';');
    while (at != std::string::npos) {
        const std::size_t equals = value.find('=', at);
        if (equals == std::string::npos) {
            break;
        }
        const std::string key = lower(trimmed(value.substr(at + 1, equals - at - 1)));
        std::size_t end = equals + 1;
        std::string text;
        if (end < value.size() && value[end] == '"') {
            std::size_t close = value.find('"', end + 1);
            while (close != std::string::npos) {
                const auto next = value.find_first_not_of(" \t", close + 1);
                if (next == std::string::npos || value[next] == ';') {
                    break;
                }
                close = value.find('"', close + 1);
            }
            if (close == std::string::npos) {
                close = value.size();
            }
            text = value.substr(end + 1, close - end - 1);
            end = close + 1;
        } else {
            end = std::min(value.find(';', end), value.size());
            text = trimmed(value.substr(equals + 1, end - equals - 1));
        }
        parameters.emplace_back(key, text);
        at = value.find(';', std::min(end, value.size()));
    }
    return parameters;
}

}  // namespace

MultipartParser::MultipartParser(std::string boundary, Sink& sink)
    : dashBoundary_("--" + boundary), delimiter_(kCrlf + "--" + boundary), sink_(sink) {}

void MultipartParser::feed(const char* data, std::size_t size) {
    if (state_ == State::Failed) {
        return;
    }
    if (state_ == State::Done) {
        trailing_ += size;
        return;
    }
    pending_.append(data, size);
    while (step()) {
    }
}

void MultipartParser::finish() {
    if (state_ == State::Done || state_ == State::Failed) {
        return;
    }
    truncated_ = true;
    if (state_ == State::ClosingLine) {
        fail("the closing boundary is not followed by CRLF");
    } else {
        fail("the body ended before the closing boundary");
    }
}

bool MultipartParser::step() {
    switch (state_) {
        case State::Opening:
            return readOpening();
        case State::Headers:
            return readHeaders();
        case State::Content:
            return readContent();
        case State::AfterDelimiter:
            return readAfterDelimiter();
        case State::ClosingLine:
            return readClosingLine();
        case State::Done:
            trailing_ += pending_.size();
            pending_.clear();
            return false;
        case State::Failed:
            return false;
    }
    return false;
}

bool MultipartParser::readOpening() {
    const std::string expected = dashBoundary_ + kCrlf;
    const std::size_t available = std::min(pending_.size(), expected.size());
    if (pending_.compare(0, available, expected, 0, available) != 0) {
        fail("the body does not start with the boundary line");
        return false;
    }
    if (available < expected.size()) {
        return false;
    }
    consume(expected.size());
    state_ = State::Headers;
    return true;
}

bool MultipartParser::readHeaders() {
    if (pending_.size() < 2) {
        return false;
    }
    if (pending_.compare(0, 2, kCrlf) == 0) {
        fail("a part has no header lines");
        return false;
    }
    const std::size_t end = pending_.find("\r\n\r\n");
    if (end == std::string::npos) {
        if (pending_.size() > kMaxHeaderBlock) {
            fail("a part's header block is longer than 16 KiB");
        }
        return false;
    }
    std::string problem;
    const auto header = parseHeaderBlock(pending_.substr(0, end + 2), &problem);
    if (!header) {
        fail(problem);
        return false;
    }
    consume(end + 4);
    sink_.beginPart(*header);
    inPart_ = true;
    state_ = State::Content;
    return true;
}

bool MultipartParser::readContent() {
    const std::size_t at = pending_.find(delimiter_);
    if (at == std::string::npos) {
        // Keep what could be the start of a delimiter split across two chunks.
        const std::size_t keep = std::min(pending_.size(), delimiter_.size() - 1);
        const std::size_t emit = pending_.size() - keep;
        if (emit > 0) {
            sink_.partData(pending_.data(), emit);
            consume(emit);
        }
        return false;
    }
    if (at > 0) {
        sink_.partData(pending_.data(), at);
    }
    consume(at + delimiter_.size());
    inPart_ = false;
    sink_.endPart(true);
    state_ = State::AfterDelimiter;
    return true;
}

bool MultipartParser::readAfterDelimiter() {
    if (pending_.size() < 2) {
        return false;
    }
    if (pending_.compare(0, 2, kCrlf) == 0) {
        consume(2);
        state_ = State::Headers;
        return true;
    }
    if (pending_.compare(0, 2, "--") == 0) {
        consume(2);
        state_ = State::ClosingLine;
        return true;
    }
    fail("a boundary is followed by neither CRLF nor \"--\"");
    return false;
}

bool MultipartParser::readClosingLine() {
    if (pending_.size() < 2) {
        return false;
    }
    if (pending_.compare(0, 2, kCrlf) != 0) {
        fail("the closing boundary is not followed by CRLF");
        return false;
    }
    consume(2);
    messageLength_ = consumed_;
    state_ = State::Done;
    return true;
}

void MultipartParser::consume(std::size_t count) {
    pending_.erase(0, count);
    consumed_ += count;
}

void MultipartParser::fail(const std::string& message) {
    error_ = message;
    state_ = State::Failed;
    pending_.clear();
    if (inPart_) {
        inPart_ = false;
        sink_.endPart(false);
    }
}

std::optional<std::string> MultipartParser::boundaryFromContentType(
    const std::string& contentType) {
    const std::string type = lower(trimmed(contentType.substr(0, contentType.find(';'))));
    if (type != "multipart/form-data") {
        return std::nullopt;
    }
    for (const auto& [key, value] : headerParameters(contentType)) {
        if (key == "boundary" && !value.empty() && value.size() <= 70) {
            return value;
        }
    }
    return std::nullopt;
}

std::optional<MultipartParser::PartHeader> MultipartParser::parseHeaderBlock(
    const std::string& block, std::string* error) {
    PartHeader header;
    bool hasDisposition = false;
    std::size_t at = 0;
    while (at < block.size()) {
        const std::size_t end = block.find(kCrlf, at);
        const std::string line = block.substr(at, end - at);
        at = end + 2;
        const std::size_t colon = line.find(':');
        if (colon == std::string::npos || colon == 0) {
            *error = "a part header line has no name: " + line;
            return std::nullopt;
        }
        const std::string name = line.substr(0, colon);
        const std::string value = trimmed(line.substr(colon + 1));
        header.lines.emplace_back(name, value);
        if (lower(name) == "content-type") {
            header.contentType = value;
        } else if (lower(name) == "content-disposition") {
            hasDisposition = lower(trimmed(value.substr(0, value.find(';')))) == "form-data";
            for (const auto& [key, text] : headerParameters(value)) {
                if (key == "name") {
                    header.name = text;
                } else if (key == "filename") {
                    header.fileName = text;
                }
            }
        }
    }
    if (!hasDisposition || header.name.empty()) {
        *error = "a part lacks Content-Disposition: form-data with a name";
        return std::nullopt;
    }
    return header;
}

}  // namespace orvale_service
