#pragma once

// Narrow text is what hosts hand over and users' file names are made of: bytes in the locale's encoding. The
// drawing library takes UTF-8.

#include <string>
#include <string_view>

class QString;

namespace platform {

/// The name of the encoding of narrow text, as iconv takes it. The user's environment decides, not the
/// process's current locale, which a host may have left at "C". A locale without an encoding of its own
/// counts as UTF-8.
const std::string& NarrowCodeset();

/// Narrow text as UTF-8. Pure ASCII comes back as it stands; a byte that means nothing in the encoding
/// becomes U+FFFD, so the result is always good UTF-8. An encoding that the system does not know counts as
/// UTF-8.
std::string NarrowToUtf8(std::string_view text, const std::string& codeset = NarrowCodeset());

/// The way back. A character that the encoding lacks becomes a question mark.
std::string Utf8ToNarrow(std::string_view text, const std::string& codeset = NarrowCodeset());

/// Narrow text as a text of the toolkit, and back.
QString NarrowToText(std::string_view text);
std::string TextToNarrow(const QString& text);

} // namespace platform
