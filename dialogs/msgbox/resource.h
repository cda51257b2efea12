/* Identifiers of the message box's resources. Read by the resource compiler too: plain numbers and C comments only. */
#pragma once

#define CVMB_NARROW 10100
#define CVMB_WIDE 10101

#define CVMB_ICON 10101
#define CVMB_MESSAGE 10102
#define CVMB_PANEL 10103

#define CVMB_FIRST_LABEL 10101
#define CVMB_REASON 10105
