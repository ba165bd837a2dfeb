#include "editors/font/font_catalogue.h"

#include "editors/font/font_file.h"
#include "platform/fonts/font_files.h"
#include "platform/narrow_text.h"
#include "resources/string_table.h"

#include <algorithm>
#include <cstring>

std::unordered_map<std::string, std::string> g_fontFileToFace;
std::unordered_map<std::string, std::string> g_fontFaceToFile;
bool g_fontCatalogueLoaded = false;

namespace {

constexpr unsigned kNameLength = 512; // bytes
constexpr int kMostFaces = 256;       // of one file; a collection may say that it has millions

void Enter(const std::string& fileKey, const char* face) {
    g_fontFileToFace[fileKey] = face;
    g_fontFaceToFile[face] = fileKey;
}

} // namespace

void LoadFontCatalogue() {
    if (g_fontCatalogueLoaded)
        return;
    g_fontFileToFace.clear();
    g_fontFaceToFile.clear();
    for (const QString& found : platform::FindFontFiles({QStringLiteral("*.tt*")})) {
        const std::string path = platform::Utf8ToNarrow(found.toStdString());
        const std::string file = path.substr(path.rfind('/') + 1);
        char name[kNameLength];
        const int faces = std::min(ReadFaceName(path.c_str(), name, kNameLength, 0), kMostFaces);
        if (faces > 0)
            Enter(file, name);
        for (int i = 1; i < faces; ++i)
            if (ReadFaceName(path.c_str(), name, kNameLength, i) > 0)
                Enter(file + '|' + std::to_string(i), name);
    }
    g_fontCatalogueLoaded = true;
}

const char* GetFontFileName(const char* face) {
    LoadFontCatalogue();
    if (std::strcmp(face, LoadChartString(ChartText::DefaultFace)) == 0)
        return LoadChartString(ChartText::DefaultFile);
    return g_fontFaceToFile[face].c_str();
}
