#include "model_json/model_json.h"

#include "common/core/windows1252.h"

// Std
#include <cmath>
#include <limits>
#include <optional>

namespace tnw {
namespace {

using ordered_json = nlohmann::ordered_json;
using json = nlohmann::json;

// A number that is not finite is written as null, and null is read back as a NaN.
ordered_json number(double v) { return std::isfinite(v) ? ordered_json(v) : ordered_json(); }

ordered_json variant(const std::optional<double>& v) { return v ? number(*v) : ordered_json(); }

ordered_json weights(const std::array<double, kMaxAttributes>& w) {
  ordered_json out = ordered_json::array();
  for (double v : w) out.push_back(number(v));
  return out;
}

[[noreturn]] void fail(const std::string& field, const std::string& what) {
  throw ModelJsonError(field, what);
}

// A whole number of the JSON text, or nothing when it does not fit in 64 bits.
std::optional<std::int64_t> wholeNumber(const json& v) {
  if (v.is_number_unsigned()) {
    const auto u = v.get<std::uint64_t>();
    if (u > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) return {};
    return static_cast<std::int64_t>(u);
  }
  return v.get<std::int64_t>();
}

const json* member(const json& object, const char* key, const std::string& where) {
  if (!object.is_object()) fail(where, "expected an object");
  const auto it = object.find(key);
  return it == object.end() ? nullptr : &*it;
}

std::string text(const json& object, const char* key, const std::string& where) {
  const json* v = member(object, key, where);
  if (v == nullptr || v->is_null()) return {};
  if (!v->is_string()) fail(where + "." + key, "expected a text");
  const auto& s = v->get_ref<const std::string&>();
  // The file stores each text with a 2-byte length: a longer one is refused, not cut.
  if (utf8ToWindows1252(s).size() > kMaxModelTextBytes) {
    fail(where + "." + key, "longer than " + std::to_string(kMaxModelTextBytes) +
                                " characters, the most a model file holds");
  }
  return s;
}

double real(const json& object, const char* key, const std::string& where) {
  const json* v = member(object, key, where);
  if (v == nullptr) return 0.0;
  if (v->is_null()) return std::numeric_limits<double>::quiet_NaN();
  if (!v->is_number()) fail(where + "." + key, "expected a number");
  return v->get<double>();
}

std::optional<double> optionalReal(const json& object, const char* key, const std::string& where) {
  const json* v = member(object, key, where);
  if (v == nullptr || v->is_null()) return std::nullopt;
  if (!v->is_number()) fail(where + "." + key, "expected a number or null");
  return v->get<double>();
}

std::int16_t integer16(const json& object, const char* key, const std::string& where) {
  const json* v = member(object, key, where);
  if (v == nullptr || v->is_null()) return 0;
  if (!v->is_number_integer()) fail(where + "." + key, "expected an integer");
  const std::optional<std::int64_t> i = wholeNumber(*v);
  if (!i || *i < std::numeric_limits<std::int16_t>::min() ||
      *i > std::numeric_limits<std::int16_t>::max()) {
    fail(where + "." + key, "outside -32768..32767");
  }
  return static_cast<std::int16_t>(*i);
}

const json* array(const json& object, const char* key, const std::string& where,
                  std::size_t maxSize) {
  const json* v = member(object, key, where);
  if (v == nullptr || v->is_null()) return nullptr;
  if (!v->is_array()) fail(where + "." + key, "expected a list");
  if (v->size() > maxSize)
    fail(where + "." + key, "more than " + std::to_string(maxSize) + " entries");
  return v;
}

void readAttribute(const json& a, std::size_t position, AttributeModel& m) {
  const std::string where = "attributes[" + std::to_string(position) + "]";
  const json* index = member(a, "index", where);
  std::int64_t att = static_cast<std::int64_t>(position);
  if (index != nullptr && !index->is_null()) {
    if (!index->is_number_integer()) fail(where + ".index", "expected an integer");
    att = wholeNumber(*index).value_or(-1);
  }
  if (att < 0 || att >= kMaxAttributes) fail(where + ".index", "outside 0..30");
  const auto i = static_cast<std::size_t>(att);
  m.AttName[i] = text(a, "name", where);
  m.AttDefinition[i] = text(a, "definition", where);
  m.AttOrientation[i] = text(a, "orientation", where);
  m.AttScoreLow[i] = real(a, "scoreLow", where);
  m.AttScoreHigh[i] = real(a, "scoreHigh", where);
  m.NumPoints[i] = integer16(a, "numPoints", where);
  if (const json* points = array(a, "points", where, kMaxPoints)) {
    for (std::size_t k = 0; k < points->size(); ++k) {
      const std::string pw = where + ".points[" + std::to_string(k) + "]";
      m.PointScore[i][k] = optionalReal((*points)[k], "score", pw);
      m.PointValue[i][k] = optionalReal((*points)[k], "value", pw);
    }
  }
}

void readWeights(const json& prev, const char* key, std::array<double, kMaxAttributes>& out) {
  if (const json* w = array(prev, key, "previous", kMaxAttributes)) {
    for (std::size_t k = 0; k < w->size(); ++k) {
      const json& v = (*w)[k];
      if (v.is_null()) {
        out[k] = std::numeric_limits<double>::quiet_NaN();
      } else if (v.is_number()) {
        out[k] = v.get<double>();
      } else {
        fail(std::string("previous.") + key, "expected numbers or null");
      }
    }
  }
}

}  // namespace

nlohmann::ordered_json modelToJson(const AttributeModel& m, bool readComplete) {
  ordered_json out;
  out["readComplete"] = readComplete;
  out["numAtt"] = m.NumAtt;
  ordered_json attributes = ordered_json::array();
  for (int a = 0; a < m.attributeCount(); ++a) {
    const auto i = static_cast<std::size_t>(a);
    ordered_json att;
    att["index"] = a;
    att["name"] = m.AttName[i];
    att["definition"] = m.AttDefinition[i];
    att["orientation"] = m.AttOrientation[i];
    att["scoreLow"] = number(m.AttScoreLow[i]);
    att["scoreHigh"] = number(m.AttScoreHigh[i]);
    att["numPoints"] = m.NumPoints[i];
    ordered_json points = ordered_json::array();
    for (int k = 0; k < m.pointCount(a); ++k) {
      const auto kk = static_cast<std::size_t>(k);
      points.push_back(
          {{"score", variant(m.PointScore[i][kk])}, {"value", variant(m.PointValue[i][kk])}});
    }
    att["points"] = std::move(points);
    attributes.push_back(std::move(att));
  }
  out["attributes"] = std::move(attributes);
  ordered_json prev;
  prev["type"] = m.PrevTNType;
  prev["refAtt"] = variant(m.PrevRefAtt);
  prev["weight"] = weights(m.PrevWeight);
  prev["weightH"] = weights(m.PrevWeightH);
  prev["weightL"] = weights(m.PrevWeightL);
  out["previous"] = std::move(prev);
  return out;
}

AttributeModel modelFromJson(const nlohmann::json& j) {
  AttributeModel m;
  if (!j.is_object()) fail("model", "expected an object");
  m.NumAtt = integer16(j, "numAtt", "model");
  if (const json* attributes = array(j, "attributes", "model", kMaxAttributes)) {
    for (std::size_t p = 0; p < attributes->size(); ++p) readAttribute((*attributes)[p], p, m);
  }
  if (const json* prev = member(j, "previous", "model"); prev != nullptr && !prev->is_null()) {
    m.PrevTNType = text(*prev, "type", "previous");
    m.PrevRefAtt = optionalReal(*prev, "refAtt", "previous");
    readWeights(*prev, "weight", m.PrevWeight);
    readWeights(*prev, "weightH", m.PrevWeightH);
    readWeights(*prev, "weightL", m.PrevWeightL);
  }
  return m;
}

std::optional<JsonInputError> modelFromJsonText(std::string_view text, AttributeModel& model) {
  json j;
  if (auto error = parseJsonText(text, kModelJsonLimits, j)) return error;
  try {
    model = modelFromJson(j);
  } catch (const ModelJsonError& e) {
    return e.error();
  }
  return std::nullopt;
}

}  // namespace tnw
