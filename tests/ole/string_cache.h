// The cache in which OLE keeps freed strings, so that counting memory does not see them freed.
#pragma once

/// Has oleaut32 free strings at once, for the rest of the process. No header declares it. A
/// function without arguments is called the same by all conventions; the import library for 32 bits
/// names this one as if it were __cdecl.
extern "C" void __cdecl SetOaNoCache();
