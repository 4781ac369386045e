bem = { output = project
        body = 1 }
hydroBody1.bemInput.meshName = box.dat
hydroBody2.bemInput = { source = hydroBody1.bemInput }
