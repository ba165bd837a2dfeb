#pragma once
// Reads the names of faces out of TrueType files and collections, as these are published: no more than their
// headers and name tables, through a mapped view. Every offset is checked against the size of the file.

#include <cstdint>

/// The full name of a face in the user's language, or else in English, as narrow text in the locale's
/// encoding. `outLength` is the room in `out` in bytes; a longer name is cut. Returns the number of faces in
/// the file, or 0 when there is no name: then the file cannot be opened, is damaged or no TrueType, or has no
/// such face.
int ReadFaceName(const char* path, char* out, unsigned outLength, int faceIndex);

/// Where a table of a face begins in the file that is open, or -1. Sets `faceCount` where the file has a
/// header.
int FindTable(int faceIndex, unsigned tag, int* faceCount);

/// The language that names of faces are wanted in: 932 Japanese, 949 Korean, 1252 any other.
int NameLanguagePreference();
