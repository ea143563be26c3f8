/* Numbers of the library's resources, for code and resource script alike. */
#define VELA_TYPE_LIBRARY 1
#define VELA_TOOLBOX_BITMAP 101
