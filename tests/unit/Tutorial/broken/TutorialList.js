var list = [
	{"filename":"TutorialStep1","title":qsTr("#1")},
	{"filename":"TutorialStep2","title":qsTr("#2}
];
