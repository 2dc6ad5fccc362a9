VERSION 5.00
Begin VB.Form frmAbout 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "About Stockroom"
   ClientHeight    =   2415
   ClientLeft      =   60
   ClientTop       =   345
   ClientWidth     =   4695
   KeyPreview      =   -1  'True
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   2415
   ScaleWidth      =   4695
   ShowInTaskbar   =   0   'False
   StartUpPosition =   1  'CenterOwner
   Begin VB.CommandButton cmdOk 
      Cancel          =   -1  'True
      Caption         =   "OK"
      Default         =   -1  'True
      Height          =   375
      Left            =   3240
      TabIndex        =   4
      Top             =   1920
      Width           =   1215
   End
   Begin VB.Label lblUser 
      Caption         =   "User"
      Height          =   255
      Left            =   720
      TabIndex        =   3
      Top             =   1710
      Width           =   3735
   End
   Begin VB.Label lblVersion 
      Caption         =   "Version"
      Height          =   255
      Left            =   720
      TabIndex        =   2
      Top             =   1440
      Width           =   3735
   End
   Begin VB.Label lblText 
      Caption         =   $"frmAbout.frx":0102
      Height          =   795
      Left            =   720
      TabIndex        =   1
      Top             =   600
      Width           =   3735
   End
   Begin VB.Label lblTitle 
      Caption         =   "Stockroom"
      BeginProperty Font 
         Name            =   "MS Sans Serif"
         Size            =   13.5
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   375
      Left            =   720
      TabIndex        =   0
      Top             =   180
      Width           =   3735
   End
   Begin VB.Image imgCrate 
      Height          =   240
      Left            =   240
      Picture         =   "frmAbout.frx":0000
      Top             =   240
      Width           =   240
   End
End
Attribute VB_Name = "frmAbout"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub cmdOk_Click()
    Unload Me
End Sub

Private Sub Form_KeyPress(KeyAscii As Integer)
    If KeyAscii = vbKeyEscape Then Unload Me
End Sub

Private Sub Form_Load()
    lblVersion.Caption = "Version " & App.Major & "." & App.Minor & "." & App.Revision
    #If Win32 Then
        lblUser.Caption = "User: " & UserNameOfSystem()
    #ElseIf Win16 Then
        lblUser.Caption = "16 bit"
    #Else
        lblUser.Caption = ""
    #End If
End Sub
