#pragma once
// The fonts that a user can choose: which file holds the face of a name. The folders of fonts are searched
// once, at the first need. For the user interface thread only.
//
// A file key names a face as the drawing library takes it: the plain file name, with "|n" behind it for face
// n, from 1, of a collection. Texts are narrow text in the locale's encoding.

#include <string>
#include <unordered_map>

extern std::unordered_map<std::string, std::string> g_fontFileToFace; ///< file key to face name
extern std::unordered_map<std::string, std::string> g_fontFaceToFile; ///< face name to file key
extern bool g_fontCatalogueLoaded; ///< the search was done, with success or not

/// Fills the maps from the font folders, once. Of files of one name the drawing library uses the one that it
/// finds first, and only that one is listed; of two files with a face of one name, the last one has the name.
void LoadFontCatalogue();

/// The file key of a face, empty for an unknown one, which is then entered with that empty key. The text is
/// good until the catalogue is filled anew.
const char* GetFontFileName(const char* face);
