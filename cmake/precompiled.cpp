// The Qt and standard headers that most rooms use are compiled once, here.
