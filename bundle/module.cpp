// The bundle's module. Its functions live in the libraries that CMakeLists.txt
// links as whole archives: the shell with its factory, and every panel. They are
// found by name, so nothing here refers to them.
