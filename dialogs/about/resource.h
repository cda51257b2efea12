/* Identifiers of the About box's resources. Read by the resource compiler too: plain numbers and C comments only. */
#pragma once

#define CVAB_DIALOG 10000

#define CVAB_ICON 10001
#define CVAB_NOTICE 10002
#define CVAB_VERSION 10003
#define CVAB_PRODUCT 10004
#define CVAB_FRAME 10005

#define CVAB_CPU_386 10001
#define CVAB_CPU_486 10002
#define CVAB_CPU_PENTIUM 10003
#define CVAB_CPU_860 10004
#define CVAB_CPU_R2000 10005
#define CVAB_CPU_R3000 10006
#define CVAB_CPU_R4000 10007
#define CVAB_CPU_ALPHA 10008
#define CVAB_CPU_UNKNOWN 10009
#define CVAB_CAPTION 10010
#define CVAB_MEMORY 10011
#define CVAB_LICENSED 10012
