#include "model/JsonDocument.h"

#include "model/Json.h"

#include <algorithm>

namespace tarnloft {
namespace {

static_assert(jsonPadding >= qsizetype(simdjson::SIMDJSON_PADDING));

constexpr size_t maxDepth = 512;
constexpr size_t keptCapacity = 64 * 1024 * 1024;  // a larger parser goes at the next document

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool continuesNumber(char c) {
  return isDigit(c) || c == '.' || c == 'e' || c == 'E' || c == '+' || c == '-';
}

bool exceeds64Bits(QByteArrayView integer) {
  constexpr QByteArrayView largest = "9223372036854775807";
  if (integer.startsWith('-')) integer = integer.sliced(1);
  return integer.size() > largest.size() || (integer.size() == largest.size() && integer > largest);
}

// The parser refuses integers beyond 64 bits, which are good JSON. With ".0" behind it such a
// number is read as the double that it stands for.
QByteArray withLongIntegersAsDoubles(const QByteArray& json) {
  QByteArray result;
  result.reserve(json.size() + json.size() / 8 + jsonPadding);
  bool inString = false;
  for (qsizetype i = 0; i < json.size();) {
    const qsizetype start = i++;
    const char c = json.at(start);
    if (c == '"') inString = !inString;
    if (inString && c == '\\') ++i;
    if (!inString && (isDigit(c) || c == '-')) {
      while (i < json.size() && continuesNumber(json.at(i))) ++i;
    }
    const QByteArrayView token =
        QByteArrayView(json).sliced(start, std::min(i, json.size()) - start);
    result += token;
    const bool integer =
        std::none_of(token.begin(), token.end(), [](char d) { return !isDigit(d) && d != '-'; });
    if (!inString && integer && exceeds64Bits(token)) result += ".0";
  }
  return result;
}

// Kept for each thread: a parser's buffers are several times the document's size.
simdjson::dom::parser& threadParser() {
  static thread_local simdjson::dom::parser parser;
  return parser;
}

simdjson::error_code parse(const QByteArray& json, simdjson::dom::element& root) {
  auto& parser = threadParser();
  if (parser.capacity() > keptCapacity) parser = simdjson::dom::parser();
  if (parser.max_depth() != maxDepth) {
    if (const auto problem = parser.allocate(size_t(json.size()), maxDepth)) return problem;
  }
  QByteArray shared = json;  // its storage tells the room behind the text alone
  const bool padded = shared.data_ptr().freeSpaceAtEnd() >= jsonPadding;
  return parser.parse(json.constData(), size_t(json.size()), !padded).get(root);
}

}  // namespace

Result<simdjson::dom::element> parseJson(const QByteArray& json) {
  if (json.startsWith("\xEF\xBB\xBF")) {
    return failure(ErrorKind::malformed, QStringLiteral("document: begins with a byte-order mark"));
  }
  simdjson::dom::element root;
  auto problem = parse(json, root);
  if (problem == simdjson::NUMBER_ERROR) {
    problem = parse(withLongIntegersAsDoubles(json), root);
  }
  if (problem == simdjson::SUCCESS) return root;
  return failure(ErrorKind::malformed, QStringLiteral("document: ") +
                                           QString::fromLatin1(simdjson::error_message(problem)));
}

}  // namespace tarnloft
