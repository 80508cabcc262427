#pragma once

class CommandRunner;
class EditorView;
class Navigation;

// What windows beside the editor need of it, to show a place in the text and to work on it.
struct EditorAccess {
    EditorView &view;
    Navigation &navigation;
    CommandRunner &runner;
};
