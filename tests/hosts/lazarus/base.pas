// The units of Free Pascal's packages that the LCL stands on, compiled before it: it is written in another dialect.
unit base;
interface
uses
  dos, variants, contnrs, typelib, eventsink, stdole2, commctrl, shlobj, uxtheme, richedit, dwmapi, process, fpimage,
  bufstream, zstream, md5, registry, inifiles, dom, xmlread, fpjson, dynlibs, syncobjs, rttiutils, fasthtmlparser,
  fpreadpng, fpwritepng, fpreadbmp, fpreadjpeg;
implementation
end.
