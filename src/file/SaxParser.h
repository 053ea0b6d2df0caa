#pragma once

#include <string>
#include <string_view>

#include "file/SaxHandlers.h"

namespace hullwright {

/// Whether the XML library found at run time is at least the one that the program was built with.
bool XmlLibraryFits();

/// Version of the XML library found at run time, such as "2.5.0".
std::string XmlLibraryVersion();

/// Parses an XML file with namespaces and delivers local names, attributes and chunks of text. A
/// chunk is the text of one line between two tags, whole: it never breaks at a character reference,
/// and the line break belongs to the chunk that follows it. False for a file that can't be read, is
/// not well-formed, declares a document type or needs more memory than there is; what stood before
/// the error has been delivered. What memory ends for in a callback is left out if the handler can
/// go on without it. What ended the parse has been reported, with its place where that
/// is the document; a file that won't open has not.
bool ParseXmlFile(std::u16string_view path, CFileSaxContentHandler& content,
                  CFileSaxErrorHandler& errors);

}  // namespace hullwright
