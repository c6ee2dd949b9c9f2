#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orvale_service {

// A streaming reader of multipart/form-data framing that is strict on purpose: the body must start
// with the first boundary line, every delimiter must be followed by CRLF or by the closing "--"
// and CRLF, and nothing may follow the closing line. It never holds more than one chunk plus a
// delimiter's length of body, so uploads of any size pass through it.
class MultipartParser {
public:
    struct PartHeader {
        std::vector<std::pair<std::string, std::string>> lines;  // as received, in order
        std::string name;
        std::optional<std::string> fileName;
        std::string contentType;
    };

    class Sink {
    public:
        virtual ~Sink() = default;
        virtual void beginPart(const PartHeader& header) = 0;
        virtual void partData(const char* data, std::size_t size) = 0;
        // complete is false when the body ended or broke inside the part.
        virtual void endPart(bool complete) = 0;
    };

    MultipartParser(std::string boundary, Sink& sink);

    void feed(const char* data, std::size_t size);
    // The body has ended; a message without its closing line becomes an error here.
    void finish();

    bool complete() const { return state_ == State::Done; }
    const std::optional<std::string>& error() const { return error_; }
    // Offset just past the closing line's CRLF, once it has been seen.
    std::optional<std::uint64_t> messageLength() const { return messageLength_; }
    std::uint64_t trailingBytes() const { return trailing_; }
    // The body ran out before the message was complete (as opposed to being malformed).
    bool truncated() const { return truncated_; }

    // The boundary parameter of a multipart/form-data content type, unquoted.
    static std::optional<std::string> boundaryFromContentType(const std::string& contentType);
    // Reads a part's header block (lines ending in CRLF); fills an error text when it is unusable.
    static std::optional<PartHeader> parseHeaderBlock(const std::string& block, std::string* error);

private:
    enum class State { Opening, Headers, Content, AfterDelimiter, ClosingLine, Done, Failed };

    bool step();
    bool readOpening();
    bool readHeaders();
    bool readContent();
    bool readAfterDelimiter();
    bool readClosingLine();
    void consume(std::size_t count);
    void fail(const std::string& message);

    std::string dashBoundary_;  // "--" + boundary
    std::string delimiter_;     // CRLF + "--" + boundary
    Sink& sink_;
    State state_ = State::Opening;
    bool inPart_ = false;
    std::string pending_;
    std::uint64_t consumed_ = 0;
    std::uint64_t trailing_ = 0;
    std::optional<std::uint64_t> messageLength_;
    std::optional<std::string> error_;
    bool truncated_ = false;
};

}  // namespace orvale_service
