VERSION 5.00
Begin VB.Form Form1 
   Caption         =   "Form1"
   ClientHeight    =   3195
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4680
   LinkTopic       =   "Form1"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin VB.Label Label1 
      Caption         =   $"frmOld.frx":0009
      Height          =   900
      Left            =   120
      TabIndex        =   1
      Top             =   1200
      Width           =   4000
   End
   Begin VB.TextBox Text1 
      Height          =   900
      Left            =   120
      MultiLine       =   -1  'True
      TabIndex        =   0
      Text            =   "frmOld.frx":0000
      Top             =   120
      Width           =   2000
   End
End
Attribute VB_Name = "Form1"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit
