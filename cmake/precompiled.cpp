// Belongs to the library that compiles the Qt and standard headers once for all rooms.
