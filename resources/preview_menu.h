#pragma once

// The menu of the preview pane.

struct MenuCommand {
    int command;
    const char* text;
};

constexpr int fitModeCommand = 32773;
constexpr int scrollModeCommand = 32772;

constexpr const char* previewMenuTitle = "Preview";
constexpr MenuCommand previewMenu[] = {
    {fitModeCommand, "&Fit Mode"},
    {scrollModeCommand, "&Scroll Mode"},
};
