#pragma once

#include "records/DecodeError.h"
#include "records/DecodeRoom.h"

#include <string_view>

namespace simdjson::dom {
class element;
}

namespace ombrivane {

/// Decodes one record by its table. Keys are matched literally; a missing required key, a wrong type, a
/// fraction or a text where a whole number belongs fails the whole record. A null counts as absent only where
/// the field is optional. Instantiated for the records that answers hold. Any thread.
/// @param room pays for the lists and texts of the record, not for the record itself
/// @throws DecodeError with the path of the field that failed
template <class Record> void decode(const simdjson::dom::element& element, Record& record, DecodeRoom& room);

/// The same with a room of its own.
template <class Record> Record decode(const simdjson::dom::element& element);

/// The same from JSON text. @throws DecodeError also when the text is no JSON.
template <class Record> Record decodeText(std::string_view json);

} // namespace ombrivane
