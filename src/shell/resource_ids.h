/* Identifiers of the library's resources, shared by the resource script and
   the code that shows them. Kept in plain C: windres reads it too. */
#ifndef KVT_RESOURCE_IDS_H
#define KVT_RESOURCE_IDS_H

#define IDS_TITLE 100        /* title of the about box and of the help message box */
#define IDI_KVTCORE 106      /* the library's icon */
#define IDS_NOHELPFILE 114   /* text of the message box when no help file is found */
#define IDS_ERROR0 115       /* 115 + code: the error descriptions */
#define IDS_ABOUT1 139       /* first line of the about box */
#define IDS_ABOUT2 140       /* second line of the about box */

#define IDD_ABOUT 200
#define IDC_ABOUT_ICON 201
#define IDC_ABOUT_LINE1 202
#define IDC_ABOUT_LINE2 203
#define IDC_ABOUT_LINE3 204
#define IDC_ABOUT_RULE 205

#endif
