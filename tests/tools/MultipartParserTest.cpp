#include <gtest/gtest.h>

#include "server/MultipartParser.h"

using orvale_service::MultipartParser;

namespace {

struct Part {
    std::string name;
    std::string fileName;
    std::string content;
    bool complete = false;
};

class CollectingSink : public MultipartParser::Sink {
public:
    std::vector<Part> parts;

    void beginPart(const MultipartParser::PartHeader& header) override {
        parts.push_back({header.name, header.fileName.value_or("-"), "", false});
    }
    void partData(const char* data, std::size_t size) override {
        parts.back().content.append(data, size);
    }
    void endPart(bool complete) override { parts.back().complete = complete; }
};

const std::string kBoundary = "b0und";

// A text part "a" holding "x", then a file part whose content looks like delimiters.
const std::string kBody =
    "--b0und\r\nContent-Disposition: form-data; name=\"a\"\r\n\r\nx"
    "\r\n--b0und\r\nContent-Disposition: form-data; name=\"f\"; filename=\"q\"x\".bin\"\r\n"
    "Content-Type: application/octet-stream\r\n\r\n\r\n--b0un\r\r\n--b0\r\n"
    "\r\n--b0und--\r\n";

struct Outcome {
    CollectingSink sink;
    bool complete = false;
    std::string error;
    std::uint64_t trailing = 0;
};

std::unique_ptr<Outcome> parse(const std::string& body, std::size_t split = std::string::npos) {
    auto outcome = std::make_unique<Outcome>();
    MultipartParser parser(kBoundary, outcome->sink);
    split = std::min(split, body.size());
    parser.feed(body.data(), split);
    parser.feed(body.data() + split, body.size() - split);
    parser.finish();
    outcome->complete = parser.complete();
    outcome->error = parser.error().value_or("");
    outcome->trailing = parser.trailingBytes();
    return outcome;
}

}  // namespace

TEST(MultipartParser, FindsTheSamePartsWhereverTheBodyIsSplit) {
    for (std::size_t split = 0; split <= kBody.size(); ++split) {
        const auto outcome = parse(kBody, split);
        ASSERT_TRUE(outcome->complete) << "split at " << split << ": " << outcome->error;
        ASSERT_EQ(outcome->sink.parts.size(), 2u);
        EXPECT_EQ(outcome->sink.parts[0].content, "x");
        EXPECT_EQ(outcome->sink.parts[1].fileName, "q\"x\".bin");
        EXPECT_EQ(outcome->sink.parts[1].content, "\r\n--b0un\r\r\n--b0\r\n");
        EXPECT_TRUE(outcome->sink.parts[1].complete);
    }
    // Bytes after the closing line are counted, not taken for a part.
    EXPECT_EQ(parse(kBody + "extra")->trailing, 5u);
}

TEST(MultipartParser, RejectsBodiesThatBreakTheFraming) {
    const std::string part = "Content-Disposition: form-data; name=\"a\"\r\n\r\nx";
    const std::vector<std::pair<std::string, std::string>> cases{
        {"preamble\r\n--b0und\r\n" + part + "\r\n--b0und--\r\n", "does not start"},
        {"--b0und\r\n" + part + "\r\n--b0und  \r\n", "neither CRLF"},
        {"--b0und\r\n" + part + "\r\n--b0und--", "not followed by CRLF"},
        {"--b0und\r\n" + part, "ended before the closing"},
        {"--b0und\r\nContent-Type: text/plain\r\n\r\nx\r\n--b0und--\r\n", "Content-Disposition"},
        {"--b0und\r\n\r\nx\r\n--b0und--\r\n", "no header lines"},
    };
    for (const auto& [body, error] : cases) {
        const auto outcome = parse(body);
        EXPECT_FALSE(outcome->complete) << body;
        EXPECT_NE(outcome->error.find(error), std::string::npos)
            << body << " -> " << outcome->error;
    }
    // A part cut off by the end of the body is reported as incomplete.
    const auto cut = parse("--b0und\r\n" + part);
    ASSERT_EQ(cut->sink.parts.size(), 1u);
    EXPECT_FALSE(cut->sink.parts[0].complete);
}
